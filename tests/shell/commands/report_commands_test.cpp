#include "shell/commands/report_commands.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

#include "presentation/documents/package.h"
#include "presentation/reports/word_report.h"
#include "tests/shell/support/window_fixture.h"
#include "tests/storage/support/full_disk.h"

namespace velmar::shell {
namespace {

using presentation::Package;

constexpr const char* kSaved = "Il documento è stato salvato.";
constexpr const char* kOld = "old";

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QString Shipped(const QString& name) { return QString(SHARE) + "/Templates/" + name; }

/// The shipped template `name` after `change`.
QByteArray Changed(const QString& name, const std::function<void(Package&)>& change) {
  Package package(BytesOf(Shipped(name)).toStdString());
  change(package);
  return QByteArray::fromStdString(package.Bytes());
}

struct Report {
  const char* action;
  const char* ending;
  const char* template_name;
};
constexpr Report kWord{"mnuFileEsportaWord", ".docx", "Template_calcolo_drav_calc.docx"};
constexpr Report kExcel{"esp_excel", ".xlsx", "Formato_drav.xlsx"};

/// A main window with a wall that was run, and a folder of templates of its own.
struct Program {
  Program() {
    for (const Report& report : {kWord, kExcel})
      QFile::copy(Shipped(report.template_name), folder.filePath(report.template_name));
    fixture.services.report_commands = &commands;
    fixture.MakeWindow();
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    fixture.Run();
  }

  QString Export(const Report& report, const QString& name) {
    fixture.file = folder.filePath(name);
    fixture.Find<QAction>(report.action)->trigger();
    return folder.filePath(name);
  }

  void ReplaceTemplate(const Report& report, const QByteArray& bytes) const {
    QFile::remove(folder.filePath(report.template_name));
    Write(folder.filePath(report.template_name), bytes);
  }

  std::string Document(const QString& path) const {
    return Package(BytesOf(path).toStdString()).Part("word/document.xml");
  }

  QTemporaryDir folder;
  DocumentServices documents{.places = {.templates = folder.path().toStdString()}};
  ReportCommands commands{documents};
  WindowFixture fixture;
};

/// A template that no report may be made of, and what is said of it.
struct Bad {
  const char* name;
  std::function<QByteArray(const Report&)> bytes;
  const char* told;
};

std::vector<Bad> BadTemplates() {
  const auto part = [](const Report& report) {
    return std::string(report.ending == kWord.ending ? "word/document.xml" : "xl/worksheets/sheet1.xml");
  };
  const auto hostile = [part](const std::string& before) {
    return [=](const Report& report) {
      return Changed(report.template_name, [&](Package& package) {
        std::string xml = package.Part(part(report));
        const std::size_t root = xml.find('<', xml.find("?>") + 2);
        package.Put(part(report), xml.insert(root, before));
      });
    };
  };
  return {
      {"empty", [](const Report&) { return QByteArray(); }, "danneggiato"},
      {"no package", [](const Report&) { return QByteArray("Relazione"); }, "danneggiato"},
      {"cut off",
       [](const Report& report) {
         const QByteArray bytes = BytesOf(Shipped(report.template_name));
         return bytes.left(bytes.size() / 2);
       },
       "danneggiato"},
      {"of the other kind",
       [](const Report& report) {
         return BytesOf(Shipped(report.ending == kWord.ending ? kExcel.template_name : kWord.template_name));
       },
       "danneggiato"},
      {"protected by a password",
       [](const Report&) { return QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 encrypted"); }, "password"},
      {"external entity", hostile(R"(<!DOCTYPE d [<!ENTITY e SYSTEM "file:///etc/passwd">]>)"), "sicurezza"},
      {"entities that grow",
       hostile(R"(<!DOCTYPE d [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>)"),
       "sicurezza"},
      {"path traversal",
       [](const Report& report) {
         return Changed(report.template_name,
                        [](Package& package) { package.Put("../../outside.xml", "<a/>"); });
       },
       "sicurezza"},
      {"zip bomb",
       [](const Report& report) {
         return Changed(report.template_name, [](Package& package) {
           package.Put("bomb.xml", std::string(Package::kMostBytesOfAPart + 1, ' '));
         });
       },
       "troppo grande"},
  };
}

}  // namespace

class ReportCommandsTest : public QObject {
  Q_OBJECT

 private slots:
  void reportsAreWrittenUnderTheNameWithItsEnding() {
    Program program;
    for (const Report& report : {kWord, kExcel}) {
      const QString file = program.Export(report, "relazione");
      QCOMPARE(program.fixture.told.last(), QString(kSaved));
      QVERIFY(BytesOf(file + report.ending).startsWith("PK"));
      QVERIFY(!QFile::exists(file));
    }
  }

  void theNameOfTheProjectIsOffered() {
    Program program;
    QStringList offered;
    program.fixture.services.boxes.choose_file_to_save = [&](const FileQuestion& question) {
      offered << question.start + ' ' + question.filter;
      return QString();
    };
    for (const Report& report : {kWord, kExcel}) program.fixture.Find<QAction>(report.action)->trigger();
    QCOMPARE(offered,
             QStringList({QString(EXAMPLES) + "/parete-forato-intonacata.docx Documento Word (*.docx)",
                          QString(EXAMPLES) + "/parete-forato-intonacata.xlsx Excel (*.xlsx)"}));
  }

  void theDocumentOfAnExampleIsOfferedInTheDocuments() {
    Program program;
    QVERIFY(QDir(program.folder.path()).mkdir("Documenti"));
    program.fixture.services.places.examples = EXAMPLES;
    program.fixture.services.places.documents = program.folder.filePath("Documenti").toStdString();
    program.fixture.file.clear();
    program.fixture.Find<QAction>(kWord.action)->trigger();
    QCOMPARE(program.fixture.to_save.back().start,
             program.folder.filePath("Documenti/parete-forato-intonacata.docx"));
  }

  void itIsToldWhereTheReportIsAndTheFolderIsOfferedAgain() {
    Program program;
    QVERIFY(QDir(program.folder.path()).mkpath("lavori/relazioni"));
    const QString project = program.folder.filePath("lavori/parete.drav");
    program.fixture.file = project;
    program.fixture.Find<QAction>("salva_con_nome")->trigger();
    const QString report = program.Export(kWord, "lavori/relazioni/prima.docx");
    QCOMPARE(program.fixture.to_save.back().start, program.folder.filePath("lavori/parete.docx"));
    QCOMPARE(program.fixture.written, QStringList(report));
    program.fixture.file.clear();
    program.fixture.Find<QAction>(kExcel.action)->trigger();
    QCOMPARE(program.fixture.to_save.back().start, program.folder.filePath("lavori/relazioni/parete.xlsx"));
    // Another job has a folder of its own.
    QVERIFY(QDir(program.folder.path()).mkdir("altro"));
    program.fixture.file = program.folder.filePath("altro/solaio.drav");
    program.fixture.Find<QAction>("salva_con_nome")->trigger();
    program.fixture.file.clear();
    program.fixture.Find<QAction>(kExcel.action)->trigger();
    QCOMPARE(program.fixture.to_save.back().start, program.folder.filePath("altro/solaio.xlsx"));
  }

  void aCancelledDialogWritesNothing() {
    Program program;
    program.fixture.file.clear();
    for (const Report& report : {kWord, kExcel}) program.fixture.Find<QAction>(report.action)->trigger();
    QVERIFY(program.fixture.told.isEmpty());
  }

  void aFileThatTheAddedEndingMeetsIsReplacedOnlyWhenAsked() {
    Program program;
    Write(program.folder.filePath("relazione.docx"), kOld);
    program.fixture.go_on = false;
    const QString file = program.Export(kWord, "relazione") + ".docx";
    QCOMPARE(program.fixture.asked.size(), 1);
    QVERIFY(program.fixture.asked.first().contains("relazione.docx"));
    QCOMPARE(BytesOf(file), QByteArray(kOld));
    program.fixture.go_on = true;
    program.Export(kWord, "relazione");
    QVERIFY(BytesOf(file).startsWith("PK"));
    // The dialog itself asks about a name that is whole.
    program.Export(kWord, "relazione.docx");
    QCOMPARE(program.fixture.asked.size(), 2);
  }

  void unknownPlaceholdersAreToldAndStay() {
    Program program;
    program.ReplaceTemplate(kWord, Changed(kWord.template_name, [](Package& package) {
                              std::string xml = package.Part("word/document.xml");
                              const std::string known = "[P1_TITOLO]";
                              xml.insert(xml.find(known), "[P1_CLIENTE] [P9_X] ");
                              package.Put("word/document.xml", xml);
                            }));
    const QString file = program.Export(kWord, "relazione.docx");
    QCOMPARE(program.fixture.told.last(),
             QString(kSaved) + "\nNel documento restano segnaposto non riconosciuti: [P1_CLIENTE] [P9_X]");
    QVERIFY(program.Document(file).find("[P1_CLIENTE] [P9_X] ") != std::string::npos);
  }

  void theReportNamesWhatTheChartIsComparedWith() {
    Program program;
    program.fixture.overlay.lay_over = [](presentation::CurveChart& chart) {
      chart.in_situ.emplace().fill(45.0);
      chart.in_situ_name = "Cantiere & prova";
    };
    const QString plain = program.Export(kWord, "senza.docx");
    QVERIFY(program.Document(plain).find("Dati in opera") == std::string::npos);
    program.fixture.open.MarkSaved();
    const QString compared = program.Export(kWord, "con.docx");
    QVERIFY(program.Document(compared).find("Dati in opera: Cantiere &amp; prova") != std::string::npos);
    const auto picture = [](const QString& file) {
      return Package(BytesOf(file).toStdString()).Part("word/media/velmar1.png");
    };
    QVERIFY(picture(plain) != picture(compared));
  }

  void theReportTellsTheCurvesThatAreCompared() {
    Program program;
    program.fixture.overlay.lay_over = [](presentation::CurveChart& chart) {
      presentation::ComparedCurve calculated{.name = "Curva teorica", .levels = chart.values, .symbol = "Rw"};
      presentation::ComparedCurve wall{.name = "Prova & co.", .symbol = "Rw", .rating = 48.0, .term = -1.0};
      wall.levels.fill(45.3);
      chart.further.push_back({.name = wall.name, .values = wall.levels, .colour = Qt::darkBlue});
      chart.comparison = {.curves = {calculated, wall}, .against = 0};
    };
    program.fixture.open.MarkSaved();
    const std::string document = program.Document(program.Export(kWord, "con.docx"));
    for (const char* text : {"Confronto tra le curve", "Prova &amp; co.", ">48<", ">45,3<",
                             "Differenze rispetto alla curva 1 (Curva teorica) [dB]"})
      QVERIFY2(document.find(text) != std::string::npos, text);
    const Package workbook(BytesOf(program.Export(kExcel, "con.xlsx")).toStdString());
    std::string sheets;
    for (const std::string& name : workbook.Names()) {
      if (name.find("sheet") != std::string::npos || name.find("sharedStrings") != std::string::npos)
        sheets += workbook.Part(name);
    }
    for (const char* text : {"Confronto tra le curve", "Prova &amp; co.", ">45.3<"})
      QVERIFY2(sheets.find(text) != std::string::npos, text);
  }

  void aTemplateThatCannotBeUsedIsToldAndTheOldFileStays_data() {
    QTest::addColumn<int>("bad");
    QTest::addColumn<bool>("word");
    const std::vector<Bad> all = BadTemplates();
    for (std::size_t i = 0; i < all.size(); ++i) {
      for (const bool word : {true, false})
        QTest::addRow("%s, %s", word ? "Word" : "Excel", all[i].name) << static_cast<int>(i) << word;
    }
  }
  void aTemplateThatCannotBeUsedIsToldAndTheOldFileStays() {
    QFETCH(const int, bad);
    QFETCH(const bool, word);
    const Report& report = word ? kWord : kExcel;
    const Bad row = BadTemplates()[static_cast<std::size_t>(bad)];
    Program program;
    program.ReplaceTemplate(report, row.bytes(report));
    const QString name = QString("relazione") + report.ending;
    Write(program.folder.filePath(name), kOld);
    const QString file = program.Export(report, name);
    QCOMPARE(program.fixture.told.size(), 1);
    QVERIFY2(program.fixture.told.first().contains(row.told), qPrintable(program.fixture.told.first()));
    QCOMPARE(BytesOf(file), QByteArray(kOld));
  }

  void aMissingTemplateIsNamedBeforeAnythingIsAsked() {
    Program program;
    for (const Report& report : {kWord, kExcel}) {
      QFile::remove(program.folder.filePath(report.template_name));
      program.Export(report, "relazione");
      QVERIFY(program.fixture.told.last().startsWith("Modello del documento non trovato"));
      QVERIFY(program.fixture.told.last().endsWith(report.template_name));
    }
  }

  void aTargetThatCannotBeWrittenIsToldAndStays_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("read-only") << "sola-lettura";
    QTest::newRow("open in Writer or Calc") << "aperto-altrove";
    QTest::newRow("a folder") << "cartella";
    QTest::newRow("no such folder") << "manca/relazione";
    QTest::newRow("full disk") << "disco-pieno";
  }
  void aTargetThatCannotBeWrittenIsToldAndStays() {
    QFETCH(const QString, name);
    for (const Report& report : {kWord, kExcel}) {
      Program program;
      const QString path = program.folder.filePath(name + report.ending);
      if (name == "sola-lettura" || name == "aperto-altrove" || name == "disco-pieno") Write(path, kOld);
      if (name == "sola-lettura") QFile::setPermissions(path, QFile::ReadOwner);
      if (name == "aperto-altrove")
        Write(program.folder.filePath(".~lock." + name + report.ending + '#'), "x");
      if (name == "cartella") QVERIFY(QDir(program.folder.path()).mkdir(name + report.ending));
      const auto files = QDir(program.folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
      std::optional<storage::FullDisk> full;
      if (name == "disco-pieno") full.emplace(4096);
      program.Export(report, name + report.ending);
      full.reset();
      QCOMPARE(program.fixture.told.size(), 1);
      QVERIFY(program.fixture.told.first() != kSaved);
      if (QFileInfo(path).isFile()) QCOMPARE(BytesOf(path), QByteArray(kOld));
      QCOMPARE(QDir(program.folder.path()).entryList(QDir::AllEntries | QDir::Hidden), files);
    }
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ReportCommandsTest)
#include "report_commands_test.moc"
