#include "shell/material_commands.h"

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <filesystem>

#include "calculation/layer_edits.h"
#include "calculation/select_calculation.h"
#include "shell/layer_row.h"
#include "shell/material_box.h"
#include "storage/materials/material_store.h"
#include "tests/shell/window_fixture.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;
using elements::MaterialFamily;
using elements::StructuralMaterial;
using windows::MaterialChange;

storage::StructuralRow Wall(const std::string& name, double thickness_mm, const std::string& keyword) {
  storage::StructuralRow row;
  row.record.values.name = name;
  row.record.values.thickness_mm = thickness_mm;
  row.record.values.density_kg_m3 = 1500;
  row.record.values.youngs_modulus_gpa = 5;
  row.record.values.loss_factor = 0.01;
  row.keyword = keyword;
  return row;
}

/// A main window with a material database of its own: a copy of the shipped one.
struct Program {
  Program() : store(folder.filePath("Database.mdb").toStdString()) {
    std::filesystem::copy_file(std::filesystem::path(SHARE) / "Databases" / "Database" / "Database.mdb",
                               store.File());
    std::filesystem::permissions(store.File(), std::filesystem::perms::owner_all);
    fixture.services.materials = storage::MaterialLookupIn(store.File());
    fixture.services.material_names = [this](MaterialFamily family) { return store.List(family); };
    commands =
        std::make_unique<MaterialCommands>(fixture.services, store.File(),
                                           [this](QWidget*, const windows::WindowTools&, MaterialFamily,
                                                  const std::string& name) { return edit(name); });
    fixture.window.reset();
    fixture.window = std::make_unique<MainWindow>(fixture.services);
    fixture.window->show();
  }
  ~Program() { fixture.window.reset(); }

  void Choose(elements::Calculation calculation) {
    fixture.open.Edit([&](elements::Setup& setup) {
      calculation::SelectCalculation(setup, calculation);
      setup.cavity.kind = elements::CavityKind::kGenericMaterial;
      for (const LayerGroup group :
           {LayerGroup::kSeaDamping1, LayerGroup::kSeaDamping2, LayerGroup::kSeaCavityDamping})
        calculation::TickDamping(setup, group, 1, true);
      calculation::ChooseSeaCavityType(setup, elements::SeaCavityType::kFibreMassFibreMassFibre);
    });
  }
  MaterialBox* List(LayerGroup group, int row) const {
    return fixture.Find<MaterialBox>(ArrayName(RowOf(group).list, row));
  }
  QStringList Offered(LayerGroup group) const {
    QStringList names;
    const MaterialBox* list = List(group, 0);
    for (int i = 0; i < list->count(); ++i) names << list->itemText(i);
    return names;
  }
  calculation::LayerText Layer(LayerGroup group, int row) const {
    return calculation::LayerTextOf(fixture.open.Setup(), group, row);
  }
  QDialog* OpenList() const {
    fixture.Find<QAction>("mnuDatabaseVediMateriali")->trigger();
    return fixture.Find<QDialog>("Form2");
  }
  QDialog* OpenTree() const {
    fixture.Find<QAction>("DB_base")->trigger();
    return fixture.Find<QDialog>("FormSceltaMateriali");
  }
  static void Search(const QDialog& window, const QString& text) {
    auto* search = window.findChild<QLineEdit*>("TextCerca");
    search->clear();
    QTest::keyClicks(search, text);
  }
  static void Press(const QDialog& window, const char* button) {
    QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
  }
  /// The names under the first root of the tree.
  static QStringList Walls(const QDialog& tree) {
    const QAbstractItemModel* model = tree.findChild<QTreeView*>("Treeview1")->model();
    QStringList names;
    for (int row = 0; row < model->rowCount(model->index(0, 0)); ++row)
      names << model->index(row, 0, model->index(0, 0)).data().toString();
    return names;
  }

  QTemporaryDir folder;
  storage::MaterialStore store;
  std::function<std::optional<MaterialChange>(const std::string& name)> edit = [](const std::string&) {
    return std::nullopt;
  };
  WindowFixture fixture;
  std::unique_ptr<MaterialCommands> commands;
};

/// Drags `mime` onto `list` as the screen does: enter, move, drop.
bool Drop(MaterialBox* list, const QMimeData* mime) {
  const QPoint middle = list->rect().center();
  QDragEnterEvent enter(middle, Qt::CopyAction, mime, Qt::LeftButton, {});
  QApplication::sendEvent(list, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(middle, Qt::CopyAction, mime, Qt::LeftButton, {});
  QApplication::sendEvent(list, &drop);
  return drop.isAccepted();
}

}  // namespace

class MaterialCommandsTest : public QObject {
  Q_OBJECT

 private slots:
  void everyKindOfRowTakesAMaterialOfItsFamily_data() {
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("calculation");
    using C = elements::Calculation;
    const auto add = [](LayerGroup group, int row, C calculation) {
      const std::string_view code = RowOf(group).code;
      QTest::newRow(std::string(code).c_str())
          << static_cast<int>(group) << row << static_cast<int>(calculation);
    };
    add(LayerGroup::kLeaf1, 0, C::kSingleWallGeneric);
    add(LayerGroup::kLeaf2, 0, C::kDoubleWallGeneric);
    add(LayerGroup::kCavity, 0, C::kDoubleWallGeneric);
    add(LayerGroup::kSeaLeaf1, 0, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaLeaf2, 0, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaDamping1, 1, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaDamping2, 1, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaCavityFibre, 2, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaCavityMass, 1, C::kDoubleWallSeaBrick);
    add(LayerGroup::kSeaCavityDamping, 1, C::kDoubleWallSeaBrick);
    add(LayerGroup::kResilient, 0, C::kImpactFloatingFloor);
  }
  void everyKindOfRowTakesAMaterialOfItsFamily() {
    QFETCH(int, group);
    QFETCH(int, row);
    QFETCH(int, calculation);
    const auto layers = static_cast<LayerGroup>(group);
    const MaterialFamily family = RowOf(layers).family;
    Program program;
    program.Choose(static_cast<elements::Calculation>(calculation));
    const storage::ListedMaterial wanted = program.store.List(family).at(4);
    QVERIFY(program.Layer(layers, row).listed != wanted.name);
    const auto others = program.fixture.open.Setup();
    program.fixture.Find<QToolButton>(ArrayName(RowOf(layers).chooser_button, row))->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    // It begins at the row's material.
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text().toStdString(), program.Layer(layers, row).listed);
    Program::Search(*window, QString::fromStdString(wanted.name));
    auto* grid = window->findChild<QTableView*>("DataGrid1");
    const QModelIndexList found =
        grid->model()->match(grid->model()->index(0, 0), Qt::DisplayRole, QString::fromStdString(wanted.name),
                             1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    QCOMPARE(found.size(), 1);
    grid->setCurrentIndex(found.first());
    Program::Press(*window, "CmdSeleziona");
    QVERIFY(!window->isVisible());
    // As a choice from the row's own list, and in no other row.
    elements::Setup expected = others;
    calculation::PutMaterial(expected, layers, row, wanted.name, program.fixture.services.materials);
    QVERIFY(program.fixture.open.Setup() == expected);
    QCOMPARE(program.Layer(layers, row).listed, wanted.name);
    QCOMPARE(program.List(layers, row)->currentText().toStdString(), wanted.name);
    QVERIFY(program.fixture.told.isEmpty());
  }

  void aPickDropsTheResultAndTakesTheDefaultThickness() {
    Program program;
    program.store.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Type("Text5_0", "55");
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.fixture.Find<QToolButton>("Command1_0")->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    Program::Search(*window, "tufo di prova");
    QTest::keyClick(window->findChild<QLineEdit*>("TextCerca"), Qt::Key_Return);
    QVERIFY(!program.fixture.open.Result().has_value());
    QCOMPARE(program.fixture.Find<QLineEdit>("Text5_0")->text(), QString("173"));
  }

  void aMaterialIsDraggedFromTheTreeOntoARow() {
    Program program;
    program.Choose(elements::Calculation::kDoubleWallGeneric);
    auto* tree = program.OpenTree();
    QVERIFY(!tree->isModal());
    auto* view = tree->findChild<QTreeView*>("Treeview1");
    const QModelIndex wool = view->model()->index(3, 0, view->model()->index(1, 0));
    const std::unique_ptr<QMimeData> mime(view->model()->mimeData({wool}));
    QVERIFY(!Drop(program.List(LayerGroup::kLeaf1, 0), mime.get()));
    const auto before = program.fixture.open.Setup();
    QVERIFY(program.fixture.open.Setup() == before);
    QVERIFY(Drop(program.List(LayerGroup::kCavity, 0), mime.get()));
    QCOMPARE(program.Layer(LayerGroup::kCavity, 0).listed, wool.data().toString().toStdString());
  }

  void enterInTheTreePutsTheMaterialIntoTheListThatHadTheFocus() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.open.Edit([](elements::Setup& setup) { setup.leaf1.count = 2; });
    auto* tree = program.OpenTree();
    Program::Search(*tree, "cartongesso");
    auto* view = tree->findChild<QTreeView*>("Treeview1");
    const std::string name = view->currentIndex().data().toString().toStdString();
    const auto before = program.fixture.open.Setup();
    QTest::keyClick(view, Qt::Key_Return);
    QVERIFY2(program.fixture.open.Setup() == before, "the focus stands in no material list");
    program.List(LayerGroup::kLeaf1, 1)->setFocus();
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 1).listed, name);
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, before.leaf1.rows[0].listed);
  }

  void aCopiedNameIsPastedIntoARow() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    auto* tree = program.OpenTree();
    Program::Search(*tree, "intonaco");
    auto* view = tree->findChild<QTreeView*>("Treeview1");
    view->setFocus();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    MaterialBox* list = program.List(LayerGroup::kLeaf1, 0);
    list->setFocus();
    list->lineEdit()->setCursorPosition(3);
    QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed,
             view->currentIndex().data().toString().toStdString());
  }

  void aDeletedMaterialStaysInTheLayerThatHoldsIt() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const auto before = program.fixture.open.Setup();
    const std::string name = program.Layer(LayerGroup::kLeaf1, 0).listed;
    auto* tree = program.OpenTree();
    auto* window = program.OpenList();
    Program::Search(*window, QString::fromStdString(name));
    Program::Press(*window, "Command4");
    QCOMPARE(program.fixture.asked.size(), 1);
    QVERIFY(!program.store.Find<StructuralMaterial>(name));
    for (const LayerGroup group :
         {LayerGroup::kLeaf1, LayerGroup::kLeaf2, LayerGroup::kSeaLeaf1, LayerGroup::kSeaCavityDamping})
      QVERIFY(!program.Offered(group).contains(QString::fromStdString(name)));
    QVERIFY(!Program::Walls(*tree).contains(QString::fromStdString(name)));
    QVERIFY(program.fixture.open.Setup() == before);
    QTest::qWait(0);
    QCOMPARE(program.List(LayerGroup::kLeaf1, 0)->currentText().toStdString(), name);
    window->close();
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.fixture.file = program.folder.filePath("progetto.drav");
    program.fixture.Find<QAction>("Salva_Progetto")->trigger();
    QVERIFY(program.fixture.told.isEmpty());
    const auto saved = program.fixture.services.read_project(program.fixture.file.toStdString());
    QCOMPARE(saved.leaf1.rows[0].listed, name);
    QCOMPARE(saved.leaf1.rows[0].slot.density_kg_m3, before.leaf1.rows[0].slot.density_kg_m3);
  }

  void aNewMaterialJoinsListsAndTree() {
    Program program;
    program.Choose(elements::Calculation::kDoubleWallSeaBrick);
    auto* tree = program.OpenTree();
    program.edit = [&](const std::string&) {
      program.store.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
      return MaterialChange{MaterialFamily::kStructural, "", "Tufo di prova", "pietre"};
    };
    auto* window = program.OpenList();
    Program::Press(*window, "Command3");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    QVERIFY(window->isVisible());
    for (const LayerGroup group : {LayerGroup::kLeaf1, LayerGroup::kLeaf2, LayerGroup::kSeaLeaf2,
                                   LayerGroup::kSeaDamping1, LayerGroup::kSeaCavityMass})
      QCOMPARE(program.Offered(group).last(), QString("Tufo di prova"));
    QVERIFY(Program::Walls(*tree).contains("Tufo di prova"));
    // The damping layers of a cavity learn of it with a fresh reading of the tables.
    QVERIFY(!program.Offered(LayerGroup::kSeaCavityDamping).contains("Tufo di prova"));
    Program::Press(*window, "Aggiorna");
    QVERIFY(program.Offered(LayerGroup::kSeaCavityDamping).contains("Tufo di prova"));
  }

  void theEditorStoresAMaterialThatIsThenPicked() {
    Program program;
    program.edit = {};
    program.fixture.window.reset();
    program.commands =
        std::make_unique<MaterialCommands>(program.fixture.services, program.store.File(),
                                           EditorOf(program.store, program.fixture.services.words));
    program.fixture.window = std::make_unique<MainWindow>(program.fixture.services);
    program.fixture.window->show();
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Find<QToolButton>("Command1_0")->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    QTimer::singleShot(0, window, [window] {
      const auto* editor = window->findChild<QDialog*>("Form5");
      QVERIFY(editor != nullptr);
      const std::pair<const char*, const char*> boxes[] = {
          {"Text1", "Tufo di prova"}, {"Text3", "250"}, {"Text4", "1600"},
          {"Text5", "400"},           {"Text6", "5"},   {"Text8", "0,02"}};
      for (const auto& [box, text] : boxes) {
        auto* field = editor->findChild<QLineEdit*>(box);
        field->selectAll();
        QTest::keyClicks(field, text);
      }
      QTest::mouseClick(editor->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    });
    Program::Press(*window, "Command3");
    QVERIFY(program.fixture.told.isEmpty());
    QVERIFY(window->isVisible());
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    Program::Press(*window, "CmdSeleziona");
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, std::string("Tufo di prova"));
    QCOMPARE(program.fixture.Find<QLineEdit>("Text5_0")->text(), QString("250"));
  }

  void aRenamedMaterialIsFollowed() {
    Program program;
    program.Choose(elements::Calculation::kDoubleWallSeaBrick);
    const std::string old_name = program.store.List(MaterialFamily::kStructural).at(2).name;
    const QString old_text = QString::fromStdString(old_name);
    program.edit = [&](const std::string& name) {
      program.store.Change<StructuralMaterial>(
          name, [](storage::StructuralRow& row) { row.record.values.name = "Nome nuovo"; });
      return MaterialChange{MaterialFamily::kStructural, name, "Nome nuovo", "murature"};
    };
    auto* window = program.OpenList();
    Program::Search(*window, old_text);
    Program::Press(*window, "CommandModifica");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Nome nuovo"));
    QVERIFY(!program.Offered(LayerGroup::kLeaf1).contains(old_text));
    QCOMPARE(program.Offered(LayerGroup::kLeaf1).last(), QString("Nome nuovo"));
    QVERIFY(program.Offered(LayerGroup::kSeaCavityDamping).contains(old_text));
    QVERIFY(!program.Offered(LayerGroup::kSeaCavityDamping).contains("Nome nuovo"));
  }

  void changesOfAnotherProgramAreSeenOnRefresh() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    auto* tree = program.OpenTree();
    auto* window = program.OpenList();
    const QString first =
        QString::fromStdString(program.store.List(MaterialFamily::kStructural).front().name);
    storage::MaterialStore other(program.store.File());
    other.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
    other.Delete(MaterialFamily::kStructural, first.toStdString());
    QTest::keyClick(window, Qt::Key_F5);
    Program::Search(*window, "tufo di prova");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    QVERIFY(program.Offered(LayerGroup::kLeaf1).contains("Tufo di prova"));
    QVERIFY(!program.Offered(LayerGroup::kLeaf1).contains(first));
    QVERIFY(Program::Walls(*tree).contains("Tufo di prova"));
  }

  void aDatabaseThatIsGoneLosesNothing() {
    Program program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const auto before = program.fixture.open.Setup();
    const QStringList offered = program.Offered(LayerGroup::kLeaf1);
    program.fixture.Find<QToolButton>("Command1_0")->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    std::filesystem::rename(program.store.File(), program.store.File().string() + ".via");
    QTest::keyClick(window, Qt::Key_F5);
    Program::Press(*window, "CmdSeleziona");
    QCOMPARE(program.fixture.told.size(), 2);
    QVERIFY(program.fixture.open.Setup() == before);
    QVERIFY(program.Offered(LayerGroup::kLeaf1) == offered);
    std::filesystem::rename(program.store.File().string() + ".via", program.store.File());
    Program::Press(*window, "CmdSeleziona");
    QVERIFY(!window->isVisible());
  }

  void theTreeGoesWithTheMainWindow() {
    Program program;
    auto* tree = program.OpenTree();
    QVERIFY(program.OpenTree() == tree);
    program.fixture.window->close();
    QVERIFY(!tree->isVisible());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::MaterialCommandsTest)
#include "material_commands_test.moc"
