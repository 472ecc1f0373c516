#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

#include "calculation/edits/select_calculation.h"
#include "calculation/runs/run.h"
#include "shell/results/results_panel.h"
#include "shell/windows/phrases.h"
#include "storage/database/connection.h"
#include "tests/shell/support/stores_program.h"

namespace velmar::shell {
namespace {

constexpr const char* kResultsName = "Database_teorico";

/// With a stored wall and a stored window.
struct Program : StoresProgram {
  Program() {
    Store("Parete x", 33.25, 20);
    Store("Serramento x", 22.5, 1.5);
  }

  void ChooseFacade() {
    fixture.open.Edit([](elements::Setup& setup) {
      calculation::SelectCalculation(setup, elements::Calculation::kCompositeElement);
      setup.base.area_text = "30";
      setup.facade.count_text = "1";
    });
  }
};

/// The curve and the rating are seen whole beside the window `name`, which blocks nothing.
void CoversNothing(const WindowFixture& fixture, const char* name) {
  QCoreApplication::processEvents();
  const auto* beside = fixture.Find<QDialog>(name);
  QVERIFY(beside->isVisible());
  QCOMPARE(beside->windowModality(), Qt::NonModal);
  const QRect covered(beside->mapToGlobal(QPoint(0, 0)), beside->size());
  for (const char* seen : {"Picture1", "Label4", "SSTab1"}) {
    const auto* widget = fixture.Find<QWidget>(seen);
    QVERIFY2(!covered.intersects(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size())), seen);
  }
}

/// The result of an example project in a window of the size of a small screen.
void RunOnASmallScreen(WindowFixture& fixture, const QString& project) {
  fixture.window->resize(1366, 768);
  fixture.window->show();
  fixture.window->OpenProject(QString("%1/%2.drav").arg(EXAMPLES, project).toStdString());
  fixture.Run();
}

}  // namespace

class StructureCommandsTest : public QObject {
  Q_OBJECT

 private slots:
  void aFacadeOfStoredPartsRunsAsTypedByHand() {
    Program program;
    program.ChooseFacade();
    const elements::Setup empty = program.fixture.open.Setup();
    program.fixture.services.pick_saved_result(program.fixture.window.get(), {0, {}});
    QTest::mouseClick(program.fixture.Find<QPushButton>("Seleziona"), Qt::LeftButton);
    QCOMPARE(program.fixture.open.Setup().base.name, std::string("Parete x"));
    QCOMPARE(program.fixture.open.Setup().base.area_text, std::string("30"));
    program.fixture.services.pick_measured(program.fixture.window.get(), {1, {}});
    auto* library = program.fixture.Find<QDialog>("Form9");
    StoresProgram::OpenEntry(*library, "TreeView1", kResultsName, "List1", "Serramento x");
    QTest::mouseClick(library->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QCOMPARE(program.fixture.open.Setup().facade.components[0].name, std::string("Serramento x"));

    elements::Setup typed = empty;
    for (std::size_t i = 0; i < acoustics::kBandCount; ++i) {
      typed.base.band_texts[i] = std::to_string(33 + i) + ",25";
      typed.facade.components[0].band_texts[i] = std::to_string(22 + i) + ".5";
    }
    typed.base.mass_kg_m2 = 120;
    typed.facade.components[0].mass_kg_m2 = 120;
    typed.facade.components[0].area_text = "1,5";
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    QVERIFY(program.fixture.open.Result() == calculation::RunCalculation(typed, 0.0, {}).result);
  }

  void aLockIsWaitedForByAWindowThatLives() {
    Program program;
    program.fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    program.fixture.Run();
    std::promise<void> held;
    std::promise<void> let_go;
    std::thread other([&] {
      storage::ChangeDatabaseWith(program.places.results, [&](SQLite::Database&) {
        held.set_value();
        let_go.get_future().wait();
      });
    });
    held.get_future().wait();
    // Only a window that goes on handling events lets the other program finish.
    bool lived = false;
    QTimer::singleShot(50, program.fixture.window.get(), [&] {
      lived = true;
      let_go.set_value();
    });
    program.name = "Parete nuova";
    program.fixture.Find<QAction>("Salva")->trigger();
    if (!lived) let_go.set_value();
    other.join();
    QVERIFY(lived);
    QVERIFY2(program.fixture.told.isEmpty(), qPrintable(program.fixture.told.join('\n')));
    QVERIFY(program.fixture.services.saved_result("Parete nuova").has_value());
  }

  void storedNamesFillTheLists() {
    const Program program;
    const std::vector<std::string> names = {"Parete x", "Serramento x"};
    QVERIFY(program.fixture.services.saved_results() == names);
    QVERIFY(program.fixture.services.saved_result("Parete x")->rating_db == 48.25);
    QVERIFY(!program.fixture.services.saved_result("Altra"));
  }

  void theComparisonLaysItsCurveOverTheResultAndGoesWithIt() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    StoresProgram::OpenEntry(*comparison, "TreeView1", kResultsName, "List1", "Parete x");
    presentation::CurveChart chart;
    program.commands->Comparison().LayOver(chart);
    QVERIFY(!chart.laboratory.has_value());
    comparison->findChild<QCheckBox*>("Check1")->click();
    program.commands->Comparison().LayOver(chart);
    QVERIFY(chart.laboratory.has_value());
    QCOMPARE((*chart.laboratory)[0], 33.25);
    program.fixture.open.DropResult();
    QVERIFY(!comparison->isVisible());
    chart = {};
    program.commands->Comparison().LayOver(chart);
    QVERIFY(!chart.laboratory.has_value());
  }

  void theComparisonStandsBesideTheResultAndBlocksNothing() {
    Program program;
    program.fixture.window->resize(1366, 768);
    program.fixture.window->show();
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    QVERIFY(!program.fixture.Find<QAction>("confronta_risultati")->isEnabled());
    QVERIFY(!program.fixture.Find<QToolButton>("Toolbar1_13")->isEnabled());
    program.fixture.Run();
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    CoversNothing(program.fixture, "Form8");
    program.fixture.Find<QDialog>("Form8")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(program.fixture.window->findChildren<QDockWidget*>().isEmpty());
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    CoversNothing(program.fixture, "Form8");
    // A changed input closes it with the result.
    program.fixture.Type("Text5_0", "80");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(program.fixture.window->findChildren<QDockWidget*>().isEmpty());
  }

  void theComparisonKeepsTheWindowOnItsScreen_data() {
    QTest::addColumn<QString>("project");
    QTest::addColumn<bool>("continuous");
    QTest::addColumn<int>("inputs");
    QTest::newRow("wall") << "cartongesso-lastra-singola" << false << 520;
    QTest::newRow("wall that is being changed") << "cartongesso-lastra-singola" << true << 480;
    QTest::newRow("lining, four numbers wide") << "controplaccaggio-calibel" << false << 440;
  }
  void theComparisonKeepsTheWindowOnItsScreen() {
    QFETCH(const QString, project);
    QFETCH(const bool, continuous);
    QFETCH(const int, inputs);
    Program program;
    WindowFixture& fixture = program.fixture;
    RunOnASmallScreen(fixture, project);
    fixture.Find<QAction>("calcolo_continuo")->setChecked(continuous);
    fixture.Find<QAction>("confronta_risultati")->trigger();
    if (continuous) {
      fixture.Type("Text5_0", "25");
      QTRY_VERIFY(!fixture.Find<QLabel>("LabelDifferenza")->text().isEmpty());
    }
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    QVERIFY2(fixture.window->width() <= 1366, qPrintable(QString::number(fixture.window->width())));
    const int left = fixture.Find<QTabWidget>("SSTab1")->width();
    QVERIFY2(left >= inputs, qPrintable(QString::number(left)));
    // The filter of the keywords shows what it holds.
    const auto* keywords = fixture.Find<QDialog>("Form8")->findChild<QComboBox*>("Combo1");
    QVERIFY(keywords->width() > keywords->fontMetrics().horizontalAdvance("tutti") + 20);
  }

  void theWidestPagesFitBesideTheComparison_data() {
    QTest::addColumn<QString>("project");
    QTest::addColumn<int>("tab");
    QTest::newRow("facade") << "facciata-nove-componenti" << 5;
    QTest::newRow("list of layers") << "multistrato-vetrocamera-tripla" << 9;
  }
  void theWidestPagesFitBesideTheComparison() {
    QFETCH(const QString, project);
    QFETCH(const int, tab);
    Program program;
    WindowFixture& fixture = program.fixture;
    RunOnASmallScreen(fixture, project);
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    strip->setCurrentIndex(tab);
    fixture.Find<QAction>("confronta_risultati")->trigger();
    const auto* area = qobject_cast<QScrollArea*>(strip->currentWidget());
    QVERIFY(area != nullptr);
    QTRY_COMPARE(area->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(fixture.window->width(), 1366);
  }

  void aClosedComparisonGivesTheInputsTheirRoomBack() {
    Program program;
    WindowFixture& fixture = program.fixture;
    fixture.window->resize(1366, 768);
    fixture.window->show();
    fixture.window->OpenProject(EXAMPLES "/facciata-nove-componenti.drav");
    fixture.Run();
    auto* strip = fixture.Find<QTabWidget>("SSTab1");
    strip->setCurrentIndex(5);
    fixture.Find<QAction>("confronta_risultati")->trigger();
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    fixture.Find<QDialog>("Form8")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto* area = qobject_cast<QScrollArea*>(strip->currentWidget());
    QVERIFY(area != nullptr);
    QTRY_COMPARE(area->horizontalScrollBar()->maximum(), 0);
  }

  void theResultsTableStandsBesideTheCurve() {
    Program program;
    program.fixture.window->resize(1366, 768);
    program.fixture.window->show();
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    program.fixture.Find<QAction>("tab_risultati")->trigger();
    CoversNothing(program.fixture, "Form4");
    QTest::keyClick(program.fixture.Find<QDialog>("Form4"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(program.fixture.window->findChildren<QDockWidget*>().isEmpty());
  }

  void aClosedComparisonLeavesNothingInTheDrawing() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    StoresProgram::OpenEntry(*comparison, "TreeView1", kResultsName, "List1", "Parete x");
    comparison->findChild<QCheckBox*>("Check1")->click();
    comparison->findChild<QPushButton*>("ConfrontoAggiungi_0")->click();
    QVERIFY(program.fixture.Results().Chart()->laboratory.has_value());
    QCOMPARE(program.fixture.Results().Chart()->further.size(), std::size_t{1});
    QTest::keyClick(comparison, Qt::Key_Escape);
    QVERIFY(!program.fixture.Results().Chart()->laboratory.has_value());
    QVERIFY(program.fixture.Results().Chart()->further.empty());
    QVERIFY(program.fixture.Results().Chart()->comparison.curves.empty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    QVERIFY(!program.fixture.Find<QCheckBox>("Check1")->isChecked());
    QVERIFY(program.fixture.Results().Chart()->further.empty());
  }

  // The continuous calculation gives another element its result before anybody sees that the former is gone.
  void anotherElementOrProjectEndsTheComparison_data() {
    QTest::addColumn<bool>("project");
    QTest::newRow("another calculation") << false;
    QTest::newRow("another project") << true;
  }
  void anotherElementOrProjectEndsTheComparison() {
    QFETCH(const bool, project);
    Program program;
    const char* example = EXAMPLES "/parete-forato-intonacata.drav";
    program.fixture.window->OpenProject(example);
    program.fixture.Find<QAction>("calcolo_continuo")->trigger();
    QTRY_VERIFY(program.fixture.open.Result().has_value());
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    StoresProgram::OpenEntry(*comparison, "TreeView1", kResultsName, "List1", "Parete x");
    comparison->findChild<QPushButton*>("ConfrontoAggiungi_0")->click();
    // A change of the same element is what one compares for.
    program.fixture.Type("Text5_0", "80");
    QTRY_VERIFY(program.fixture.open.Result().has_value());
    QVERIFY(program.fixture.window->findChild<QDialog*>("Form8") != nullptr);
    QCOMPARE(program.fixture.Results().Chart()->further.size(), std::size_t{1});
    QVERIFY(program.fixture.Results().Chart()->comparison.curves.front().levels ==
            *program.fixture.open.Result()->spectrum);
    program.fixture.open.MarkSaved();
    if (project) {
      program.fixture.window->OpenProject(example);
    } else {
      program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(program.fixture.window->findChild<QDialog*>("Form8") == nullptr);
    QTRY_VERIFY(program.fixture.open.Result().has_value());
    QVERIFY(program.fixture.Results().Chart()->further.empty());
  }

  void variantsOfTheProjectAreComparedAndDrawnOnce() {
    Program program;
    program.fixture.window->OpenProject(EXAMPLES "/parete-forato-intonacata.drav");
    program.fixture.Run();
    program.fixture.Find<QToolButton>("FissaVariante")->click();
    program.fixture.Type("Text5_0", "80");
    program.fixture.Run();
    QCOMPARE(program.fixture.Results().Chart()->further.size(), std::size_t{1});
    const QString name = FromUtf8(program.fixture.Results().Chart()->further.front().name);
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    auto* list = comparison->findChild<QListWidget*>("List3");
    QCOMPARE(list->count(), 1);
    list->setCurrentRow(0);
    comparison->findChild<QPushButton*>("ConfrontoAggiungi_2")->click();
    QCOMPARE(program.fixture.Results().Chart()->further.size(), std::size_t{1});
    QCOMPARE(FromUtf8(program.fixture.Results().Chart()->further.front().name), name);
    QVERIFY(program.fixture.Results().Chart()->further.front().look.has_value());
    // Without its variant the curve goes at once.
    program.fixture.Find<QToolButton>("Variante_0")->setFocus();
    QTest::keyClick(program.fixture.Find<QToolButton>("Variante_0"), Qt::Key_Delete);
    QVERIFY(program.fixture.Results().Chart()->further.empty());
    QCOMPARE(program.fixture.Results().Chart()->comparison.curves.size(), std::size_t{1});
  }

  void theMenuOpensTheLibraryAtImpactOrAirborneData() {
    const Program program;
    const std::pair<const char*, const char*> entries[] = {{"Dati_Lnw", "Solai - terzi d'ottava"},
                                                           {"Dati_Rw", "Vetrate - indici dichiarati"}};
    for (const auto& [entry, file] : entries) {
      program.fixture.Find<QAction>(entry)->trigger();
      auto* library = program.fixture.Find<QDialog>("Form9");
      const auto* tree = library->findChild<QTreeWidget*>("TreeView1");
      QCOMPARE(tree->findItems(file, Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
      QVERIFY(!library->findChild<QPushButton*>("Command1")->isVisible());
      QTest::keyClick(library, Qt::Key_Escape);
      QVERIFY(!library->isVisible());
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  void aResultIsStoredUnderItsNameOnce() {
    Program program;
    QString answer = "  Parete nuova ";
    NameQuestion asked;
    program.fixture.services.boxes.ask_name = [&](const NameQuestion& question) {
      asked = question;
      return answer;
    };
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    auto* save = program.fixture.Find<QAction>("Salva");
    save->trigger();
    QCOMPARE(asked.title, QString("Salva struttura calcolata"));
    QCOMPARE(asked.proposed, QString("Parete x"));
    QCOMPARE(program.fixture.services.saved_results().back(), std::string("Parete nuova"));
    QVERIFY(program.fixture.told.isEmpty());
    answer = "PARETE NUOVA";
    save->trigger();
    QCOMPARE(program.fixture.told.size(), 1);
    QVERIFY(program.fixture.told.front().contains("esiste già"));
    answer.clear();
    save->trigger();
    QCOMPARE(program.fixture.services.saved_results().size(), std::size_t{3});
    QCOMPARE(program.fixture.told.size(), 1);
  }

  void aResultThatCannotBeStoredIsToldAndStays_data() {
    QTest::addColumn<QString>("spoilt");
    QTest::newRow("missing") << "missing";
    QTest::newRow("read-only") << "read-only";
    QTest::newRow("damaged") << "damaged";
  }

  void aResultThatCannotBeStoredIsToldAndStays() {
    QFETCH(const QString, spoilt);
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    const auto result = program.fixture.open.Result();
    program.name = "Parete nuova";
    const std::filesystem::path file = program.places.results;
    const std::filesystem::path aside = file.string() + ".via";
    std::filesystem::copy_file(file, aside);
    if (spoilt == "read-only") {
      std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    } else {
      std::filesystem::remove(file);
      if (spoilt == "damaged") std::ofstream(file) << "this is no database";
    }
    auto* save = program.fixture.Find<QAction>("Salva");
    save->trigger();
    QCOMPARE(program.fixture.told.size(), 1);
    QVERIFY(program.fixture.told.front().contains("Database_teorico.mdb"));
    QVERIFY(program.fixture.open.Result() == result);
    std::filesystem::remove(file);
    std::filesystem::rename(aside, file);
    save->trigger();
    QCOMPARE(program.fixture.services.saved_results().back(), std::string("Parete nuova"));
    QCOMPARE(program.fixture.told.size(), 1);
  }

  void namesOfResultsAreTheSameWhateverTheirCase_data() {
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("again");
    QTest::newRow("letters") << "Parete esterna"
                             << "PARETE ESTERNA";
    QTest::newRow("accents") << "Però è così"
                             << "PERÒ È COSÌ";
    QTest::newRow("quotes") << "Parete d'ambito \"A\""
                            << "parete D'AMBITO \"a\"";
    QTest::newRow("blanks around") << "Parete"
                                   << "  parete ";
  }

  void namesOfResultsAreTheSameWhateverTheirCase() {
    QFETCH(const QString, first);
    QFETCH(const QString, again);
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    auto* save = program.fixture.Find<QAction>("Salva");
    program.name = first;
    save->trigger();
    QCOMPARE(program.fixture.services.saved_results().size(), std::size_t{3});
    program.name = again;
    save->trigger();
    QCOMPARE(program.fixture.told.size(), 1);
    program.name = "   ";
    save->trigger();
    QCOMPARE(program.fixture.told.size(), 1);
    QCOMPARE(program.fixture.services.saved_results().size(), std::size_t{3});
    QCOMPARE(program.fixture.services.saved_results().back(), first.toStdString());
  }

  void aStoredFloorIsNoPartOfAFacade() {
    Program program;
    program.fixture.window->OpenProject(EXAMPLES "/calpestio-galleggiante.drav");
    program.fixture.Run();
    program.name = "Solaio";
    program.fixture.Find<QAction>("Salva")->trigger();
    QVERIFY(program.fixture.told.isEmpty());
    QCOMPARE(program.fixture.services.saved_results().size(), std::size_t{2});
    program.fixture.Find<QAction>("DB_risultati")->trigger();
    auto* window = program.fixture.Find<QDialog>("Form7");
    window->findChild<QAbstractButton*>("Option1_1")->click();
    QCOMPARE(window->findChild<QLineEdit*>("Text2")->text(), QString("Solaio"));
  }

  void theComparisonOfALiningKeepsTheCurveOfItsBase() {
    Program program;
    program.fixture.window->OpenProject(EXAMPLES "/controplaccaggio-calibel.drav");
    program.fixture.Run();
    program.name = "Contropareti \"x\"";
    program.fixture.Find<QAction>("Salva")->trigger();
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    StoresProgram::OpenEntry(*comparison, "TreeView1", kResultsName, "List1", program.name);
    comparison->findChild<QCheckBox*>("Check1")->click();
    const auto& chart = program.fixture.Results().Chart();
    QVERIFY(chart.has_value());
    QCOMPARE(chart->first_band, std::size_t{3});
    QCOMPARE(chart->last_band, std::size_t{18});
    QVERIFY(chart->base.has_value());
    QVERIFY(chart->laboratory == program.fixture.open.Result()->spectrum);
    QCOMPARE(chart->laboratory_name, program.name.toStdString());
  }

  void theResultsWindowOpensFromItsCommand() {
    const Program program;
    program.fixture.Find<QAction>("DB_risultati")->trigger();
    auto* window = program.fixture.Find<QDialog>("Form7");
    QVERIFY(window->isVisible());
    QVERIFY(!window->findChild<QPushButton*>("Seleziona")->isVisible());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::StructureCommandsTest)
#include "structure_commands_test.moc"
