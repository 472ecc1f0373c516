#include <QAction>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "shell/report_commands.h"
#include "tests/shell/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kResultCommands[] = {"Salva", "mnuFileEsportaWord", "esp_excel", "tab_risultati",
                                           "confronta_risultati"};
constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";

}  // namespace

/// Menu entries and tool bar buttons.
class CommandsTest : public QObject {
  Q_OBJECT

 private slots:
  void startsWithoutACalculation() {
    WindowFixture fixture;
    QCOMPARE(fixture.window->windowTitle(), QString("VELMARpro - Calcolo previsionale elementi - Nuovo"));
    QVERIFY(!fixture.Find<QAction>("esegui_calcolo")->isEnabled());
    QVERIFY(!fixture.Find<QAction>("Salva_Progetto")->isEnabled());
    QVERIFY(fixture.Find<QAction>("Apri_Progetto")->isEnabled());
    for (const char* name : kResultCommands) QVERIFY(!fixture.Find<QAction>(name)->isEnabled());
  }

  void aMissingManualIsTold() {
    WindowFixture fixture;
    fixture.Find<QAction>("tutorial")->trigger();
    QCOMPARE(fixture.told.size(), 1);
    fixture.Find<QAction>("ges_database")->trigger();
    QCOMPARE(fixture.told.size(), 2);
  }

  void theKindButtonsBeginWithTheirFirstCalculation() {
    WindowFixture fixture;
    for (int button = 17; button <= 22; ++button) {
      fixture.Find<QAction>("Button_" + QString::number(button))->trigger();
      QCOMPARE(static_cast<int>(RowOf(*fixture.open.Setup().calculation).button), button);
      QVERIFY(fixture.Find<QAction>("Salva_Progetto")->isEnabled());
    }
  }

  void reportsAreWrittenOrTold() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.Run();
    AddReportCommands(fixture.services, std::filesystem::path(SHARE) / "Templates");
    fixture.file = folder.filePath("relazione");
    fixture.Find<QAction>("mnuFileEsportaWord")->trigger();
    fixture.Find<QAction>("esp_excel")->trigger();
    QCOMPARE(fixture.told, QStringList({"Il documento è stato salvato.", "Il documento è stato salvato."}));
    QVERIFY(QFile::exists(folder.filePath("relazione.docx")));
    QVERIFY(QFile::exists(folder.filePath("relazione.xlsx")));
    AddReportCommands(fixture.services, folder.path().toStdString());
    fixture.Find<QAction>("esp_excel")->trigger();
    QVERIFY(fixture.told.last().contains("Formato_drav.xlsx"));
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::CommandsTest)
#include "commands_test.moc"
