#include "shell/structure_commands.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QListView>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <filesystem>

#include "calculation/run.h"
#include "calculation/select_calculation.h"
#include "storage/results/results_store.h"
#include "tests/shell/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr const char* kResultsName = "Database_teorico";

/// A main window with the shipped library and a results database of its own.
struct Program {
  Program() {
    const std::filesystem::path databases = std::filesystem::path(SHARE) / "Databases";
    structures::LibraryPlaces places;
    places.library = databases / "Database";
    places.pictures = databases / "immagine";
    places.results = folder.filePath("Database_teorico.mdb").toStdString();
    std::filesystem::copy_file(places.library / "Database_teorico.mdb", places.results);
    std::filesystem::permissions(places.results, std::filesystem::perms::owner_all);
    Store(places.results, "Parete x", 33.25, 20);
    Store(places.results, "Serramento x", 22.5, 1.5);
    commands = std::make_unique<StructureCommands>(
        fixture.services, places, std::make_shared<storage::AccessSession>(storage::AccessReader{}));
    fixture.window.reset();
    fixture.window = std::make_unique<MainWindow>(fixture.services);
    fixture.window->show();
  }

  static void Store(const std::filesystem::path& file, const std::string& name, double lowest, double area) {
    storage::SavedResult result;
    result.name = name;
    result.rating = lowest + 15;
    result.adaptation = -1;
    result.other_adaptation = -5;
    result.area_m2 = area;
    result.mass_kg_m2 = 120;
    for (std::size_t i = 0; i < result.bands.size(); ++i) result.bands[i] = lowest + static_cast<double>(i);
    storage::ResultsStore(file).Save(storage::ResultTable::kAirborne, result);
  }

  /// Opens the file of stored results in a tree, and the entry in `row` of the list beside it.
  static void OpenStored(const QDialog& window, const char* tree, const char* list, int row) {
    auto* widget = window.findChild<QTreeWidget*>(tree);
    widget->setCurrentItem(widget->findItems(kResultsName, Qt::MatchExactly | Qt::MatchRecursive).first());
    auto* view = window.findChild<QListView*>(list);
    view->setCurrentIndex(view->model()->index(row, 0));
  }

  void ChooseFacade() {
    fixture.open.Edit([](elements::Setup& setup) {
      calculation::SelectCalculation(setup, elements::Calculation::kCompositeElement);
      setup.base.area_text = "30";
      setup.facade.count_text = "1";
    });
  }

  QTemporaryDir folder;
  WindowFixture fixture;
  std::unique_ptr<StructureCommands> commands;
};

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
    Program::OpenStored(*library, "TreeView1", "List1", 1);
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
    Program::OpenStored(*comparison, "TreeView1", "List1", 0);
    presentation::CurveChart chart;
    program.fixture.services.lay_over(chart);
    QVERIFY(!chart.laboratory.has_value());
    comparison->findChild<QCheckBox*>("Check1")->click();
    program.fixture.services.lay_over(chart);
    QVERIFY(chart.laboratory.has_value());
    QCOMPARE((*chart.laboratory)[0], 33.25);
    program.fixture.open.DropResult();
    QVERIFY(!comparison->isVisible());
    chart = {};
    program.fixture.services.lay_over(chart);
    QVERIFY(!chart.laboratory.has_value());
  }

  void theComparisonIsModalFromTheToolBarAlone() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    QVERIFY(!program.fixture.Find<QAction>("confronta_risultati")->isEnabled());
    QVERIFY(!program.fixture.Find<QToolButton>("Toolbar1_13")->isEnabled());
    program.fixture.Run();
    program.fixture.Find<QAction>("confronta_risultati")->trigger();
    auto* beside = program.fixture.Find<QDialog>("Form8");
    QCOMPARE(beside->windowModality(), Qt::NonModal);
    beside->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    QCOMPARE(program.fixture.Find<QDialog>("Form8")->windowModality(), Qt::WindowModal);
  }

  void aClosedComparisonStaysInTheDrawingUntilTheNextOne() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Run();
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    auto* comparison = program.fixture.Find<QDialog>("Form8");
    Program::OpenStored(*comparison, "TreeView1", "List1", 0);
    comparison->findChild<QCheckBox*>("Check1")->click();
    comparison->close();
    presentation::CurveChart chart;
    chart.values = *program.fixture.open.Result()->spectrum;
    program.fixture.services.lay_over(chart);
    QVERIFY(chart.laboratory.has_value());
    // The same window again: nothing is ticked, the drawing stands.
    program.fixture.Find<QToolButton>("Toolbar1_13")->click();
    QVERIFY(!program.fixture.Find<QCheckBox>("Check1")->isChecked());
    program.fixture.services.lay_over(chart);
    QVERIFY(chart.laboratory.has_value());
    chart.autoscale = true;
    program.fixture.services.lay_over(chart);
    QVERIFY(!chart.laboratory.has_value());
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
