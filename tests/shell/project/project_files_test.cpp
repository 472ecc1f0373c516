#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include "calculation/runs/run.h"
#include "foundation/failure.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

QByteArray TextOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteText(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(path));
  file.write(text);
}

/// Runs of the program, one after the other, over one folder of unsaved work.
struct Runs {
  std::filesystem::path Recovered() const { return folder.filePath("recupero").toStdString(); }

  /// The copies of unsaved work that stand there.
  QStringList Copies() const { return QDir(folder.filePath("recupero")).entryList({"*.drav"}, QDir::Files); }

  /// A run that ends with an unsaved thickness. @param file what it had saved before; empty: nothing
  void Leave(const char* thickness, const QString& file = {}) {
    const QStringList before = Copies();
    {
      WindowFixture lost;
      lost.services.places.recovery = Recovered();
      lost.MakeWindow();
      lost.Choose(kSingleGeneric);
      lost.file = file;
      if (!file.isEmpty()) lost.Find<QAction>("Salva_Progetto")->trigger();
      lost.Type("Text5_0", thickness);
      lost.window->close();
    }
    // Each a minute after the one before.
    for (const QString& copy : Copies()) {
      if (before.contains(copy)) continue;
      QFile written(folder.filePath("recupero/" + copy));
      if (!written.open(QIODevice::ReadWrite)) qFatal("no copy");
      const QDateTime time = QDateTime::currentDateTime().addSecs(60 * before.size());
      written.setFileTime(time.addSecs(-30), QFileDevice::FileModificationTime);
    }
  }

  /// The next run, to which lost work is offered and which gives `answers`.
  WindowFixture& Next(
      std::vector<LostWorkAnswer> answers,
      const std::function<void(WindowFixture&)>& prepare = [](WindowFixture&) {}) {
    window.reset();
    window = std::make_unique<WindowFixture>();
    window->services.places.recovery = Recovered();
    window->lost_answers = std::move(answers);
    prepare(*window);
    window->MakeWindow();
    window->window->OfferRecovery();
    return *window;
  }
  WindowFixture& Window() { return *window; }

  static QStringList Names(const std::vector<LostWork>& works) {
    QStringList names;
    for (const LostWork& work : works) names += work.Name("");
    return names;
  }

  QTemporaryDir folder;
  std::unique_ptr<WindowFixture> window;
};

}  // namespace

/// Projects opened, saved, left and recovered.
class ProjectFilesTest : public QObject {
  Q_OBJECT

 private slots:
  void everyExampleGivesWhatItsProjectGives_data() {
    QTest::addColumn<QString>("file");
    for (const auto& entry : std::filesystem::directory_iterator(EXAMPLES))
      QTest::newRow(entry.path().stem().c_str()) << QString::fromStdString(entry.path().string());
  }

  void everyExampleGivesWhatItsProjectGives() {
    QFETCH(const QString, file);
    WindowFixture fixture;
    fixture.file = file;
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QVERIFY2(fixture.told.isEmpty(), qPrintable(fixture.told.join('\n')));
    QVERIFY(fixture.open.IsSaved());
    QVERIFY(fixture.window->windowTitle().endsWith(QFileInfo(file).completeBaseName()));
    elements::Setup expected = fixture.open.Setup();
    fixture.Run();
    calculation::PrepareRun(expected);
    const auto outcome = calculation::RunCalculation(expected, 0.0, [](const Message&) { return true; });
    QVERIFY(fixture.open.Result() == outcome.result);
  }

  void aSavedProjectOpensAgain() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.Type("Text5_0", "123");
    fixture.file = folder.filePath("parete");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QVERIFY(QFile::exists(folder.filePath("parete.drav")));
    QVERIFY(fixture.open.IsSaved());
    QVERIFY(fixture.window->windowTitle().endsWith(" - parete"));
    WindowFixture other;
    other.file = folder.filePath("parete.drav");
    other.Find<QAction>("Apri_Progetto")->trigger();
    QCOMPARE(other.Find<QLineEdit>("Text5_0")->text(), QString("123"));
  }

  void unsavedChangesAreAskedAboutByTheButtonAlone() {
    WindowFixture fixture;
    fixture.window->show();
    fixture.Choose(kSingleGeneric);
    fixture.Find<QAction>("Button_23")->trigger();
    QCOMPARE(fixture.save_questions, 1);
    QVERIFY(fixture.window->isVisible());
    fixture.Find<QAction>("esci")->trigger();
    QCOMPARE(fixture.save_questions, 1);
    QVERIFY(!fixture.window->isVisible());
  }

  // --- work that was not saved ---

  void unsavedWorkIsOfferedAtTheNextStart() {
    Runs runs;
    runs.Leave("77");
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(next.lost.size(), 1U);
    QCOMPARE(next.lost[0].size(), 1U);
    QVERIFY(next.lost[0][0].project.path.empty());
    QVERIFY(next.lost[0][0].changed.secsTo(QDateTime::currentDateTime()) < 60);
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QVERIFY(!next.open.IsSaved());
    QVERIFY(next.window->windowTitle().endsWith(" - Nuovo"));
  }

  void laterChangesNothingAndTheWorkIsOfferedAgain() {
    Runs runs;
    runs.Leave("77");
    QCOMPARE(runs.Next({}).lost.size(), 1U);  // Esc
    QVERIFY(!runs.Window().open.Setup().calculation);
    QCOMPARE(runs.Copies().size(), 1);
    WindowFixture& third = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(third.Find<QLineEdit>("Text5_0")->text(), QString("77"));
  }

  void recoveredWorkKeepsItsNameAndSavesToItsFile() {
    Runs runs;
    const QString file = runs.folder.filePath("parete nord.drav");
    runs.Leave("77", file);
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}});
    QCOMPARE(next.lost[0][0].project.path, std::filesystem::path(file.toStdString()));
    QVERIFY(next.window->windowTitle().endsWith(" - parete nord"));
    next.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(next.to_save.size(), 0U);
    QVERIFY(next.asked.isEmpty());
    QVERIFY(next.open.IsSaved());
    QCOMPARE(runs.Copies(), QStringList());
    WindowFixture again;
    again.window->OpenProject(file.toStdString());
    QCOMPARE(again.Find<QLineEdit>("Text5_0")->text(), QString("77"));
  }

  void theOldCopyStaysUntilTheNewOneIsWritten() {
    Runs runs;
    runs.Leave("77");
    const QStringList left = runs.Copies();
    bool full = true;
    WindowFixture& next = runs.Next({{LostWorkChoice::kRecover, 0}}, [&](WindowFixture& fixture) {
      const auto write = fixture.services.write_project;
      fixture.services.write_project = [write, &full](const std::filesystem::path& path,
                                                      const elements::Setup& setup) {
        if (full) throw Failure({}, "no space left on device");
        write(path, setup);
      };
    });
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QCOMPARE(runs.Copies(), left);
    QVERIFY(next.Find<QLabel>("RigaStato")->text().startsWith("La copia di sicurezza"));
    full = false;
    next.Type("Text5_0", "88");
    next.window->close();
    QCOMPARE(runs.Copies().size(), 1);
    QVERIFY(runs.Copies() != left);
    QCOMPARE(runs.Next({{LostWorkChoice::kRecover, 0}}).Find<QLineEdit>("Text5_0")->text(), QString("88"));
  }

  void severalLostWorksAreListedAndDeletedOneByOne() {
    Runs runs;
    runs.Leave("71", runs.folder.filePath("prima.drav"));
    runs.Leave("72", runs.folder.filePath("seconda.drav"));
    runs.Leave("73");
    WindowFixture& next = runs.Next({{LostWorkChoice::kDelete, 1}, {LostWorkChoice::kRecover, 1}});
    QCOMPARE(next.lost.size(), 2U);
    QCOMPARE(runs.Names(next.lost[0]), QStringList({"", "seconda", "prima"}));  // the latest first
    QCOMPARE(next.asked.size(), 1);
    QVERIFY2(next.asked[0].contains("seconda"), qPrintable(next.asked[0]));
    QCOMPARE(runs.Names(next.lost[1]), QStringList({"", "prima"}));
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("71"));
    // What was neither recovered nor deleted is there still, beside the copy of the work that is open.
    QCOMPARE(runs.Copies().size(), 2);
  }

  void deletingIsAskedAbout() {
    Runs runs;
    runs.Leave("77");
    WindowFixture& next =
        runs.Next({{LostWorkChoice::kDelete, 0}}, [](WindowFixture& fixture) { fixture.go_on = false; });
    QCOMPARE(next.asked.size(), 1);
    QCOMPARE(next.lost.size(), 2U);  // the question stands again
    QCOMPARE(runs.Copies().size(), 1);
  }

  void workThatAnotherProgramHoldsIsNotOffered() {
    Runs runs;
    WindowFixture running;
    running.services.places.recovery = runs.Recovered();
    running.MakeWindow();
    running.Choose(kSingleGeneric);
    running.Type("Text5_0", "77");
    running.window->SurviveFailure("copied now");
    QCOMPARE(runs.Copies().size(), 1);
    QCOMPARE(runs.Next({}).lost.size(), 0U);
  }

  void closingAsksOnlyWhenTheWorkCannotBeKept() {
    Runs runs;
    WindowFixture fixture;
    bool full = false;
    fixture.services.places.recovery = runs.Recovered();
    const auto write = fixture.services.write_project;
    fixture.services.write_project = [&](const std::filesystem::path& path, const elements::Setup& setup) {
      if (full) throw Failure({}, "no space left on device");
      write(path, setup);
    };
    fixture.MakeWindow();
    fixture.window->show();
    fixture.Choose(kSingleGeneric);
    full = true;
    fixture.window->close();
    QCOMPARE(fixture.save_questions, 1);  // answered with cancel
    QVERIFY(fixture.window->isVisible());
    full = false;
    fixture.window->close();
    QCOMPARE(fixture.save_questions, 1);
    QVERIFY(!fixture.window->isVisible());
    QCOMPARE(runs.Copies().size(), 1);
  }

  void whatClosingDoesIsSaidTheFirstTime() {
    Runs runs;
    const auto said = [&](const char* thickness) {
      WindowFixture fixture;
      fixture.services.places.recovery = runs.Recovered();
      fixture.services.places.settings = runs.folder.filePath("finestra.ini").toStdString();
      fixture.MakeWindow();
      fixture.window->show();
      fixture.Choose(kSingleGeneric);
      fixture.Type("Text5_0", thickness);
      const auto* line = fixture.Find<QLabel>("RigaStato");
      // The copy is written a while after the change.
      if (!QTest::qWaitFor([&] { return !runs.Copies().isEmpty(); }, 20000)) return QString("no copy");
      const QString text = line->isVisible() ? line->text() : QString();
      fixture.open.MarkSaved();
      return text;
    };
    QVERIFY(said("71").contains("al prossimo avvio"));
    QCOMPARE(said("72"), QString());
  }

  void givingUpTheChangesLeavesNoCopy() {
    Runs runs;
    WindowFixture fixture;
    fixture.services.places.recovery = runs.Recovered();
    fixture.MakeWindow();
    fixture.Choose(kSingleGeneric);
    fixture.save = false;
    fixture.Find<QAction>("Button_23")->trigger();
    QCOMPARE(runs.Copies(), QStringList());
  }

  // --- the file behind the work ---

  void savingAgainAsksNothing() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.file = folder.filePath("parete.drav");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 1U);
    fixture.Type("Text5_0", "88");
    fixture.file.clear();
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 1U);
    QVERIFY(fixture.open.IsSaved());
    QVERIFY(fixture.asked.isEmpty());
    QCOMPARE(fixture.Find<QLabel>("RigaStato")->text(),
             "Progetto salvato: " + folder.filePath("parete.drav"));
    WindowFixture other;
    other.window->OpenProject(folder.filePath("parete.drav").toStdString());
    QCOMPARE(other.Find<QLineEdit>("Text5_0")->text(), QString("88"));
  }

  void savingUnderAnotherNameAsksForIt() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    for (const char* name : {"prima.drav", "seconda.drav"}) {
      fixture.file = folder.filePath(name);
      fixture.Find<QAction>("salva_con_nome")->trigger();
    }
    QCOMPARE(fixture.to_save.size(), 2U);
    QCOMPARE(fixture.to_save[1].start, folder.filePath("prima.drav"));
    QVERIFY(fixture.window->windowTitle().endsWith(" - seconda"));
    QVERIFY(QFile::exists(folder.filePath("prima.drav")));
    QVERIFY(QFile::exists(folder.filePath("seconda.drav")));
  }

  void aFileThatAnotherProgramHasWrittenIsAskedAbout() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.file = folder.filePath("parete.drav");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    WriteText(fixture.file, "written by a colleague");
    fixture.Type("Text5_0", "88");
    fixture.go_on = false;
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.asked.size(), 1);
    QVERIFY(fixture.asked[0].contains("parete.drav"));
    QCOMPARE(TextOf(fixture.file), QByteArray("written by a colleague"));
    QVERIFY(!fixture.open.IsSaved());
    fixture.go_on = true;
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QVERIFY(TextOf(fixture.file).startsWith("VELMAR "));
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.asked.size(), 2);
  }

  void aFileThatTheAddedEndingMeetsIsReplacedOnlyWhenAsked() {
    const QTemporaryDir folder;
    WriteText(folder.filePath("parete.drav"), "old");
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.file = folder.filePath("parete");
    fixture.go_on = false;
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.asked.size(), 1);
    QVERIFY(fixture.asked[0].contains("parete.drav"));
    QCOMPARE(TextOf(folder.filePath("parete.drav")), QByteArray("old"));
    QVERIFY(!fixture.open.IsSaved());
    fixture.go_on = true;
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QVERIFY(TextOf(folder.filePath("parete.drav")).startsWith("VELMAR "));
  }

  void anEndingInCapitalsIsAnEnding() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.file = folder.filePath("X.DRAV");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("X.DRAV"));
    QVERIFY(fixture.asked.isEmpty());
    QVERIFY(fixture.window->windowTitle().endsWith(" - X"));
  }

  void examplesAreOriginals() {
    const QTemporaryDir folder;
    const QString examples = folder.filePath("Examples");
    const QString documents = folder.filePath("Documenti");
    QVERIFY(QDir().mkpath(examples) && QDir().mkpath(documents));
    const QString example = examples + "/parete.drav";
    QVERIFY(QFile::copy(EXAMPLES "/parete-forato-intonacata.drav", example));
    const QByteArray original = TextOf(example);
    WindowFixture fixture;
    fixture.services.places.examples = examples.toStdString();
    fixture.services.places.documents = documents.toStdString();
    fixture.MakeWindow();
    fixture.window->OpenProject(example.toStdString());
    fixture.Type("Text5_0", "88");
    fixture.file = example;  // somebody insists
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 1U);
    QCOMPARE(fixture.to_save[0].start, documents + "/parete.drav");
    QCOMPARE(fixture.told.size(), 1);
    QCOMPARE(TextOf(example), original);
    QVERIFY(!fixture.open.IsSaved());
    fixture.file = documents + "/mia.drav";
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QVERIFY(fixture.open.IsSaved());
    QVERIFY(fixture.window->windowTitle().endsWith(" - mia"));
    fixture.Type("Text5_0", "89");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 2U);  // it has a file of its own now
  }

  void aNewWorkAsksAboutTheOldOneAndGoesBackToTheStart() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kSingleGeneric);
    fixture.file = folder.filePath("parete.drav");
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    fixture.Type("Text5_0", "88");
    auto* start = fixture.Find<QWidget>("Inizio");
    QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(fixture.save_questions, 1);  // answered with cancel
    QVERIFY(!start->isVisible());
    QCOMPARE(fixture.Find<QLineEdit>("Text5_0")->text(), QString("88"));
    fixture.save = true;
    QTest::keyClick(fixture.window.get(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(start->isVisible());
    QVERIFY(fixture.window->windowTitle().endsWith(" - Nuovo"));
    QVERIFY(!fixture.Find<QAction>(kSingleGeneric)->isChecked());
    QVERIFY(!fixture.Find<QAction>("Salva_Progetto")->isEnabled());
    WindowFixture other;
    other.window->OpenProject(folder.filePath("parete.drav").toStdString());
    QCOMPARE(other.Find<QLineEdit>("Text5_0")->text(), QString("88"));
  }

  void anotherElementBeginsAWorkWithoutAName() {
    WindowFixture fixture;
    fixture.services.places.documents = QDir::tempPath().toStdString();
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    fixture.Type("Text5_0", "77");
    fixture.Choose("TIPO_PARETE_SINGOLA_2");  // the same element by another relation
    QVERIFY(fixture.window->windowTitle().endsWith(" - parete-forato-intonacata"));
    fixture.Find<QAction>("Button_18")->trigger();
    QVERIFY(fixture.window->windowTitle().endsWith(" - Nuovo"));
    QCOMPARE(fixture.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    fixture.file.clear();
    fixture.Find<QAction>("Salva_Progetto")->trigger();
    QCOMPARE(fixture.to_save.size(), 1U);
    QVERIFY(!fixture.to_save[0].start.contains("parete-forato"));
  }

  void aCancelledOpeningLeavesTheResult() {
    WindowFixture fixture;
    fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    fixture.Run();
    QVERIFY(fixture.open.Result());
    fixture.open.MarkSaved();
    fixture.file.clear();  // Esc
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QVERIFY(fixture.open.Result());
    QVERIFY(fixture.open.IsSaved());
  }

  void aClickOnTheStartScreenOpensAnExample() {
    WindowFixture fixture;
    fixture.services.places.examples = EXAMPLES;
    fixture.MakeWindow();
    fixture.window->show();
    auto* list = fixture.Find<QListWidget>("Esempi");
    QCOMPARE(list->count(), static_cast<int>(ProjectsIn(EXAMPLES).size()));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    QTRY_VERIFY(fixture.open.Setup().calculation.has_value());
    QVERIFY(fixture.window->windowTitle().endsWith(" - calpestio-galleggiante"));
    QVERIFY(!list->isVisible());
  }

  void aProjectOfAnUnknownCalculationIsTold() {
    WindowFixture fixture;
    fixture.services.read_project = [](const std::filesystem::path&) { return elements::Setup(); };
    fixture.Choose(kSingleGeneric);
    fixture.Run();
    fixture.save = false;
    fixture.file = "futuro.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QCOMPARE(fixture.told.size(), 1);
    QVERIFY(!fixture.Find<QAction>("esegui_calcolo")->isEnabled());
    QVERIFY(!fixture.open.Result());
  }

  void aDamagedProjectIsToldAndChangesNothing() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("rotto.drav"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("VELMAR 2.0.0\nProgetto\n");
    file.close();
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.save = false;
    const elements::Setup before = fixture.open.Setup();
    fixture.file = file.fileName();
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    QCOMPARE(fixture.told.size(), 1);
    QVERIFY2(fixture.told[0].contains(fixture.file), qPrintable(fixture.told[0]));
    QVERIFY(fixture.open.Setup() == before);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ProjectFilesTest)
#include "project_files_test.moc"
