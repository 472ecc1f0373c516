#include <QAction>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kResultCommands[] = {"Salva", "mnuFileEsportaWord", "esp_excel", "tab_risultati",
                                           "confronta_risultati"};

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
  }

  void whatLeadsNowhereIsNotOffered() {
    const QTemporaryDir folder;
    WindowFixture fixture;
    for (const char* name : {"Contatta_m", "ges_database"})
      QVERIFY(!fixture.Find<QAction>(name)->isVisible());
    QFile program(folder.filePath("gestione"));
    QVERIFY(program.open(QIODevice::WriteOnly));
    fixture.services.places.maintenance_program = program.fileName().toStdString();
    fixture.services.places.contact = "mailto:assistenza@example.com";
    QStringList opened;
    fixture.services.open_address = [&](const QString& address) {
      opened += address;
      return true;
    };
    fixture.services.start_program = [&](const std::filesystem::path& started) {
      opened += QString::fromStdString(started.string());
      return true;
    };
    fixture.MakeWindow();
    for (const char* name : {"Contatta_m", "ges_database"}) {
      QVERIFY(fixture.Find<QAction>(name)->isVisible());
      fixture.Find<QAction>(name)->trigger();
    }
    QCOMPARE(opened, QStringList({"mailto:assistenza@example.com", program.fileName()}));
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

  void theKindButtonsAllowToSave() {
    WindowFixture fixture;
    for (int button = 17; button <= 22; ++button) {
      fixture.Find<QAction>("Button_" + QString::number(button))->trigger();
      QCOMPARE(static_cast<int>(RowOf(*fixture.open.Setup().calculation).button), button);
      QVERIFY(fixture.Find<QAction>("Salva_Progetto")->isEnabled());
    }
  }

  void theToolBarSaysWhatItsButtonsDo() {
    const WindowFixture fixture;
    const QMap<int, QString> tips = {{1, "Apri progetto"},
                                     {2, "Salva progetto"},
                                     {3, "Salva struttura calcolata nel database"},
                                     {5, "Anteprima di stampa"},
                                     {6, "Stampa"},
                                     {8, "Esporta risultati in formato Microsoft Word"},
                                     {9, "Esporta risultati in formato Microsoft Excel"},
                                     {11, "Esegui il calcolo"},
                                     {12, "Visualizza tabella dei risultati"},
                                     {13, "Confronto risultati con database strutture"},
                                     {15, "Dimensioni parete"},
                                     {17, "Parete singola"},
                                     {18, "Parete doppia"},
                                     {19, "Solaio"},
                                     {20, "Facciata"},
                                     {21, "Controplaccaggio"},
                                     {22, "Controsoffitto"},
                                     {23, "Esci"}};
    for (int place = 1; place <= 23; ++place) {
      const auto* button = fixture.window->findChild<QToolButton*>("Toolbar1_" + QString::number(place));
      QCOMPARE(button != nullptr, tips.contains(place));
      if (button == nullptr) continue;
      QVERIFY2(button->toolTip().startsWith(tips[place]), qPrintable(button->toolTip()));
      QVERIFY(!button->accessibleName().isEmpty());
      QVERIFY(!button->icon().isNull());
    }
  }

  void everyMenuEntryIsThere() {
    const WindowFixture fixture;
    for (const char* name : {"nuovo_progetto",
                             "Apri_Progetto",
                             "Salva_Progetto",
                             "salva_con_nome",
                             "salva_come_modello",
                             "Salva",
                             "mnuFileEsportaWord",
                             "esp_excel",
                             "stampa",
                             "Anteprima_stampa",
                             "info_progetto",
                             "esci",
                             "DB_risultati",
                             "ges_database",
                             "Dati_Lnw",
                             "Dati_Rw",
                             "DB_base",
                             "mnuDatabaseVediMateriali",
                             "dim_pareti",
                             "esegui_calcolo",
                             "confronta_risultati",
                             "tab_risultati",
                             "aiuto_qui",
                             "tutorial",
                             "Contatta_m",
                             "Versione"}) {
      const auto* action = fixture.Find<QAction>(name);
      QVERIFY2(!action->text().isEmpty(), name);
      QVERIFY2(!action->associatedObjects().isEmpty(), name);
    }
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::CommandsTest)
#include "commands_test.moc"
