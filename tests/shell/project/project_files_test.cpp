#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include "calculation/runs/run.h"
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

}  // namespace

/// Projects opened, saved and left.
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
    auto* list = fixture.Find<QListWidget>("Costruzioni");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(2)).center());
    QTRY_VERIFY(fixture.open.Setup().calculation.has_value());
    QVERIFY(fixture.window->windowTitle().endsWith(" - usuale-03-doppia-forati-8-8"));
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
