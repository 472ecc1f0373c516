#include <QAction>
#include <QTest>
#include <QUrl>

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

  void theManualIsHandedToTheSystem() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    const QString manual = folder.filePath("VELMARpro - Manuale d'uso.pdf");
    QFile file(manual);
    QVERIFY(file.open(QIODevice::WriteOnly));
    fixture.services.places.manual = manual.toStdString();
    QString opened;
    bool opens = true;
    fixture.services.open_address = [&](const QString& address) {
      opened = address;
      return opens;
    };
    fixture.Find<QAction>("tutorial")->trigger();
    QCOMPARE(QUrl(opened).toLocalFile(), manual);
    QVERIFY(fixture.told.isEmpty());
    opens = false;
    fixture.Find<QAction>("tutorial")->trigger();
    QVERIFY(fixture.told.join(' ').contains(manual));
  }

  void theKindButtonsBeginWithTheirFirstCalculation() {
    WindowFixture fixture;
    for (int button = 17; button <= 22; ++button) {
      fixture.Find<QAction>("Button_" + QString::number(button))->trigger();
      QCOMPARE(static_cast<int>(RowOf(*fixture.open.Setup().calculation).button), button);
      QVERIFY(fixture.Find<QAction>("Salva_Progetto")->isEnabled());
    }
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::CommandsTest)
#include "commands_test.moc"
