#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <clocale>
#include <random>

#include "calculation/run.h"
#include "calculation/select_calculation.h"
#include "shell/calculation_menu.h"
#include "shell/report_commands.h"
#include "shell/tab_layout.h"
#include "tests/shell/window_fixture.h"

namespace velmar::shell {

namespace {

constexpr const char* kResultCommands[] = {"Salva", "mnuFileEsportaWord", "esp_excel", "tab_risultati",
                                           "confronta_risultati"};
constexpr const char* kSingleGeneric = "TIPO_PARETE_SINGOLA_0";
constexpr const char* kDoubleGeneric = "TIPO_PARETE_DOPPIA_0";

/// A layer list whose rows can be told by the visible boxes.
int VisibleRows(const WindowFixture& fixture, const QString& name, int capacity) {
  int rows = 0;
  for (int i = 0; i < capacity; ++i)
    rows += fixture.Find<QWidget>(name + '_' + QString::number(i))->isHidden() ? 0 : 1;
  return rows;
}

}  // namespace

class MainWindowTest : public QObject {
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

  void everyCalculationRunsFromItsMenuAsWithoutAWindow_data() {
    QTest::addColumn<int>("index");
    for (const elements::CalculationRow& row : elements::Catalogue())
      QTest::newRow(std::string(row.variant).c_str()) << static_cast<int>(row.calculation);
  }
  void everyCalculationRunsFromItsMenuAsWithoutAWindow() {
    QFETCH(const int, index);
    const auto calculation = static_cast<elements::Calculation>(index);
    const elements::CalculationRow& row = RowOf(calculation);
    WindowFixture fixture;
    elements::Setup expected = fixture.open.Setup();
    QAction* action = nullptr;
    for (auto* candidate : fixture.window->findChildren<QAction*>()) {
      const QString group = QString::fromUtf8(row.menu_group.data(), static_cast<int>(row.menu_group.size()));
      if (candidate->objectName() == group ||
          candidate->objectName() == group + '_' + QString::number(row.menu_index))
        action = candidate;
    }
    QVERIFY(action != nullptr);
    action->trigger();
    calculation::SelectCalculation(expected, calculation);
    QVERIFY(fixture.open.Setup() == expected);
    const auto tabs = TabsOf(calculation);
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    QCOMPARE(strip->currentIndex(), static_cast<int>(tabs.front().tab));
    for (int tab = 0; tab < kTabCount; ++tab) {
      bool shown = false;
      for (const ShownTab& one : tabs) shown = shown || static_cast<int>(one.tab) == tab;
      QCOMPARE(strip->isTabVisible(tab), shown);
    }
    fixture.Run();
    calculation::PrepareRun(expected);
    const auto outcome = calculation::RunCalculation(expected, 0.0, [](const Message&) { return true; });
    QVERIFY(fixture.open.Result() == outcome.result);
    QCOMPARE(fixture.Find<QAction>("Salva")->isEnabled(), outcome.result.has_value());
    QCOMPARE(fixture.told.isEmpty(), outcome.status == calculation::RunStatus::kDone);
  }

  void aNewThicknessTakesTheResultAway() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.Run();
    for (const char* name : kResultCommands) QVERIFY(fixture.Find<QAction>(name)->isEnabled());
    QVERIFY(!fixture.Find<QLabel>("Label4")->text().isEmpty());
    fixture.Find<QAction>("tab_risultati")->trigger();
    QVERIFY(!fixture.Find<QAction>("tab_risultati")->isEnabled());
    fixture.Type("Text5_0", "8");
    QCOMPARE(fixture.Find<QLabel>("Label4")->text(), QString());
    for (const char* name : kResultCommands) QVERIFY(!fixture.Find<QAction>(name)->isEnabled());
    QTRY_VERIFY(fixture.window->findChild<QWidget*>("Form4") == nullptr);
    QVERIFY(!fixture.Find<QWidget>("Check3")->isEnabled());
  }

  void aDeclinedRangeLeavesNoResult() {
    WindowFixture fixture;
    fixture.go_on = false;
    fixture.Choose("TIPO_PARETE_SINGOLA_2");
    fixture.Type("Text5_0", "1");
    fixture.Run();
    QCOMPARE(fixture.asked.size(), 1);
    QVERIFY(fixture.asked.first().contains('\n'));
    QVERIFY(fixture.told.isEmpty());
    QVERIFY(!fixture.open.Result());
  }

  void aClickOnATabChangesNothing() {
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.Run();
    const elements::Setup before = fixture.open.Setup();
    const bool saved = fixture.open.IsSaved();
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    QTest::mouseClick(strip->tabBar(), Qt::LeftButton, {}, strip->tabBar()->tabRect(2).center());
    QVERIFY(fixture.open.Setup() == before);
    QCOMPARE(fixture.open.IsSaved(), saved);
    QVERIFY(fixture.open.Result());
  }

  void anEmptiedCountBecomesOne() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    auto* count = fixture.Find<QComboBox>("Combo1");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "3");
    QCOMPARE(VisibleRows(fixture, "Combo3", 10), 3);
    count->lineEdit()->selectAll();
    QTest::keyClick(count, Qt::Key_Backspace);
    QCOMPARE(count->currentText(), QString("1"));
    QCOMPARE(VisibleRows(fixture, "Combo3", 10), 1);
  }

  void aCavityCountAboveSevenCapsTheSecondLeaf() {
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.Find<QRadioButton>("Option2_2")->click();
    auto* count = fixture.Find<QComboBox>("Combo18");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "8");
    QCOMPARE(count->currentText(), QString("8"));
    QCOMPARE(fixture.Find<QComboBox>("Combo5")->currentText(), QString("7"));
    QCOMPARE(fixture.open.Setup().leaf2.count, 7);
    QCOMPARE(VisibleRows(fixture, "Combo9", 7), 7);
    fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(1);
    QCOMPARE(VisibleRows(fixture, "Combo4", 10), 7);
  }

  void aComponentCountAboveNineKeepsItsBlank() {
    WindowFixture fixture;
    fixture.Choose("cal_facciata");
    auto* count = fixture.Find<QComboBox>("Combo15");
    count->lineEdit()->selectAll();
    QTest::keyClicks(count, "12");
    QCOMPARE(count->currentText(), QString("9 "));
    for (int i = 0; i < 9; ++i) QVERIFY(fixture.Find<QTabWidget>("SSTab2")->isTabVisible(i));
  }

  void keysOfNumbersPass_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("exponent") << "1E-3"
                              << "1E-3";
    QTest::newRow("small e") << "1e-3"
                             << "1E-3";
    QTest::newRow("no leading exponent") << "E5"
                                         << "5";
    QTest::newRow("one exponent") << "1E2E3"
                                  << "1E23";
    QTest::newRow("comma") << "12,5"
                           << "12,5";
    QTest::newRow("point types the comma") << "12.5"
                                           << "12,5";
    QTest::newRow("one separator") << "1,2.3"
                                   << "1,23";
    QTest::newRow("no separator in the exponent") << "1E2,5"
                                                  << "1E25";
    QTest::newRow("no letters") << "1a2"
                                << "12";
    QTest::newRow("no minus") << "-5"
                              << "5";
    QTest::newRow("nought becomes ten") << "0"
                                        << "10";
  }
  void keysOfNumbersPass() {
    QFETCH(const QString, keys);
    QFETCH(const QString, text);
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    fixture.Type("Text5_0", keys);
    QCOMPARE(fixture.Find<QLineEdit>("Text5_0")->text(), text);
  }

  void aCavityDepthOfNoughtIsToldWhenItsFieldIsLeft() {
    WindowFixture fixture;
    fixture.Choose(kDoubleGeneric);
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    fixture.Type("Text9", "0");
    QCOMPARE(fixture.told.size(), 0);
    fixture.Find<QRadioButton>("Option2_0")->setFocus();
    QCOMPARE(fixture.told.size(), 1);
    QCOMPARE(fixture.Find<QLineEdit>("Text9")->text(), QString("10"));
  }

  void bandValuesLeaveTheResultUnlessTheyAreNoNumbers() {
    WindowFixture fixture;
    fixture.file = QString(EXAMPLES) + "/facciata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    fixture.Run();
    QVERIFY(fixture.open.Result());
    fixture.Type("Text13_5", "44,5");
    QVERIFY(fixture.open.Result());
    fixture.Type("Text13_5", ",");
    QVERIFY(fixture.open.Result());
    fixture.Type("Text13_5", "1E");
    QVERIFY(!fixture.open.Result());
    QCOMPARE(fixture.Find<QLineEdit>("Text13_5")->text(), QString());
  }

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
      lost.window.reset();
      lost.window = std::make_unique<MainWindow>(lost.services);
      lost.Choose(kSingleGeneric);
      lost.Type("Text5_0", "77");
      lost.window->close();
      lost.window.reset();
    }
    WindowFixture next;
    next.services.places.recovery = recovery;
    next.window.reset();
    next.window = std::make_unique<MainWindow>(next.services);
    next.window->OfferRecovery();
    QCOMPARE(next.asked.size(), 1);
    QCOMPARE(next.Find<QLineEdit>("Text5_0")->text(), QString("77"));
    QVERIFY(!next.open.IsSaved());
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

  void theTableIsCopiedWithTabsAndLineFeeds() {
    WindowFixture fixture;
    fixture.Choose("cal_solaio_new_0");
    fixture.Run();
    QVERIFY2(fixture.open.Result(), qPrintable(fixture.told.join('\n')));
    fixture.Find<QAction>("tab_risultati")->trigger();
    auto* copy = fixture.Find<QWidget>("Form4")->findChild<QAbstractButton*>("Command1_1");
    copy->click();
    QVERIFY(!copy->isEnabled());
    const QStringList rows = QGuiApplication::clipboard()->text().split('\n');
    QCOMPARE(rows.size(), 26);
    QVERIFY(rows.at(0).startsWith("Frequenza [Hz]\tLi [dB]\tRif [dB]"));
    QVERIFY(rows.at(22).startsWith("Lnw [dB]\t"));
    QCOMPARE(rows.at(24).count('\t'), 1);
  }

  void enterGoesToTheNextField() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kSingleGeneric);
    fixture.Find<QLineEdit>("Text5_0")->setFocus();
    QTest::keyClick(fixture.Find<QLineEdit>("Text5_0"), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("Combo2_0"));
  }

  void keysReachTabsAndRun() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kDoubleGeneric);
    QTest::keyClick(fixture.window.get(), Qt::Key_3, Qt::ControlModifier);
    QCOMPARE(fixture.Find<QTabWidget>("SSTab1")->currentIndex(), 2);
    QTest::keyClick(fixture.window.get(), Qt::Key_F5);
    QVERIFY(fixture.open.Result());
  }

  void aMaterialIsFoundByTyping() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kSingleGeneric);
    auto* list = fixture.Find<QComboBox>("Combo3_0");
    const QString name = list->itemText(5);
    list->setFocus();
    list->lineEdit()->selectAll();
    QTest::keyClicks(list, name);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(fixture.open.Setup().leaf1.rows[0].slot.name, name.toStdString());
    QCOMPARE(list->currentText(), name);
  }

  void aMaterialThatIsNotThereChangesNothing() {
    WindowFixture fixture;
    fixture.window->show();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    fixture.Choose(kSingleGeneric);
    fixture.Run();
    const elements::Setup before = fixture.open.Setup();
    auto* list = fixture.Find<QComboBox>("Combo3_0");
    const QString name = list->currentText();
    list->setFocus();
    list->lineEdit()->selectAll();
    QTest::keyClicks(list, "criptonite");
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(fixture.open.Setup() == before);
    QVERIFY(fixture.open.Result());
    QCOMPARE(list->currentText(), name);
  }

  void theWheelMovesAListOnlyWithTheFocus() {
    WindowFixture fixture;
    fixture.Choose(kSingleGeneric);
    auto* list = fixture.Find<QComboBox>("Combo2_0");
    const elements::Setup before = fixture.open.Setup();
    QWheelEvent event({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &event);
    QVERIFY(fixture.open.Setup() == before);
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

  void aTightnessClassTakesTheResultAway() {
    WindowFixture fixture;
    fixture.file = QString(EXAMPLES) + "/facciata.drav";
    fixture.Find<QAction>("Apri_Progetto")->trigger();
    fixture.Run();
    auto* list = fixture.Find<QComboBox>("ComboTenutaAria_0");
    QCOMPARE(list->count(), 5);
    QTest::keyClick(list, list->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    QVERIFY(!fixture.open.Result());
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

  void aSmallElementHasADashForItsArea() {
    WindowFixture fixture;
    fixture.Choose("cal_facciata");
    fixture.Type("Text7", "10");
    fixture.Type("Text23_0", "2.5");
    QCOMPARE(fixture.Find<QLabel>("Label19_0")->text(), QString("25,0%"));
    fixture.Type("Text23_0", "-");
    QCOMPARE(fixture.Find<QLineEdit>("Text23_0")->text(), QString("-"));
    QCOMPARE(fixture.Find<QLabel>("Label19_0")->text(), QString("0,0%"));
  }

  void theSeaCavityShowsItsContents_data() {
    QTest::addColumn<int>("type");
    for (int type = 0; type < elements::kSeaCavityTypeCount; ++type)
      QTest::newRow(std::to_string(type).c_str()) << type;
  }
  void theSeaCavityShowsItsContents() {
    QFETCH(const int, type);
    WindowFixture fixture;
    fixture.Choose("TIPO_PARETE_DOPPIA_4");
    auto* list = fixture.Find<QComboBox>("ComboTipoIntercSEA");
    QCOMPARE(list->count(), 7);
    for (int i = 0; i < type; ++i) QTest::keyClick(list, Qt::Key_Down);
    const auto shown = static_cast<elements::SeaCavityType>(type);
    QCOMPARE(VisibleRows(fixture, "ComboMatFibraIntercSEA", 3), FibreCount(shown));
    QCOMPARE(VisibleRows(fixture, "ComboMatMassaIntercSEA", 2), MassCount(shown));
    QCOMPARE(VisibleRows(fixture, "ComboMatSmorzIntercSEA", 2), MassCount(shown));
  }

  void aRandomWalkNeverShowsAForeignResult();
};

void MainWindowTest::aRandomWalkNeverShowsAForeignResult() {
  constexpr int kSteps = 3000;
  WindowFixture fixture;
  fixture.window->show();
  std::mt19937 random(20261120);
  const auto pick = [&random](qsizetype count) {
    return static_cast<qsizetype>(random() % static_cast<std::mt19937::result_type>(count));
  };
  const QStringList keys = {"0", "1", "8", "12,5", "1E3", ",", "250", "7", ""};
  for (int step = 0; step < kSteps; ++step) {
    switch (pick(6)) {
      case 0: {
        const auto& row = elements::Catalogue()[static_cast<std::size_t>(pick(elements::kCalculationCount))];
        for (auto* action : fixture.window->findChildren<QAction*>()) {
          if (action->isCheckable() && pick(47) == 0 && !action->objectName().isEmpty()) {
            action->trigger();
            break;
          }
        }
        static_cast<void>(row);
        break;
      }
      case 1:
        fixture.Run();
        if (fixture.open.Result()) {
          const auto outcome =
              calculation::RunCalculation(fixture.open.Setup(), 0.0, [](const Message&) { return true; });
          const bool divides = RowOf(*fixture.open.Setup().calculation).family == elements::Family::kSharp;
          QVERIFY(divides || fixture.open.Result() == outcome.result);
        }
        break;
      case 2: {
        QList<QAbstractButton*> buttons;
        for (auto* button : fixture.window->findChildren<QAbstractButton*>()) {
          if (button->isVisible() && button->isEnabled() &&
              (button->inherits("QCheckBox") || button->inherits("QRadioButton")))
            buttons += button;
        }
        if (!buttons.isEmpty()) buttons.at(pick(buttons.size()))->click();
        break;
      }
      case 3: {
        QList<QComboBox*> lists;
        for (auto* list : fixture.window->findChildren<QComboBox*>()) {
          if (list->isVisible() && list->isEnabled()) lists += list;
        }
        if (!lists.isEmpty())
          QTest::keyClick(lists.at(pick(lists.size())), pick(2) ? Qt::Key_Down : Qt::Key_Up);
        break;
      }
      default: {
        QList<QLineEdit*> fields;
        for (auto* field : fixture.window->findChildren<QLineEdit*>()) {
          if (field->isVisible() && field->isEnabled() && !field->isReadOnly()) fields += field;
        }
        if (fields.isEmpty()) break;
        QLineEdit* field = fields.at(pick(fields.size()));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, keys.at(pick(keys.size())));
      }
    }
    const bool has_result = fixture.open.Result().has_value();
    QCOMPARE(fixture.Find<QLabel>("Label4")->text().isEmpty(), !has_result);
    QCOMPARE(fixture.Find<QAction>("esp_excel")->isEnabled(), has_result);
    QCOMPARE(fixture.save_questions, 0);
  }
}

}  // namespace velmar::shell

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  velmar::shell::MainWindowTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "main_window_test.moc"
