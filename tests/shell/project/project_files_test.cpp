#include <QAction>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include "calculation/run.h"
#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

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

  void unsavedWorkIsOfferedAtTheNextStart() {
    const QTemporaryDir folder;
    const auto recovery = std::filesystem::path(folder.path().toStdString()) / "recupero";
    {
      WindowFixture lost;
      lost.services.places.recovery = recovery;
      lost.MakeWindow();
      lost.Choose(kSingleGeneric);
      lost.Type("Text5_0", "77");
      lost.window->close();
      lost.window.reset();
    }
    WindowFixture next;
    next.services.places.recovery = recovery;
    next.MakeWindow();
    next.window->OfferRecovery();
    QCOMPARE(next.asked.size(), 1);
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QVERIFY(!next.open.IsSaved());
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
    QVERIFY(fixture.open.Setup() == before);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::ProjectFilesTest)
#include "project_files_test.moc"
