#include "shell/commands/material_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>

#include "tests/shell/support/materials_program.h"

namespace velmar::shell {
namespace {

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

/// Materials on their way into layer rows: from the list, the tree and the clipboard.
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
    MaterialsProgram program;
    program.Choose(static_cast<elements::Calculation>(calculation));
    const storage::ListedMaterial wanted = program.store.List(family).at(4);
    QVERIFY(program.Layer(layers, row).listed != wanted.name);
    const auto others = program.fixture.open.Setup();
    program.fixture.Find<QToolButton>(ArrayName(RowOf(layers).chooser_button, row))->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    // It begins at the row's material.
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text().toStdString(), program.Layer(layers, row).listed);
    MaterialsProgram::Search(*window, QString::fromStdString(wanted.name));
    auto* grid = window->findChild<QTableView*>("DataGrid1");
    const QModelIndexList found =
        grid->model()->match(grid->model()->index(0, 0), Qt::DisplayRole, QString::fromStdString(wanted.name),
                             1, Qt::MatchExactly | Qt::MatchCaseSensitive);
    QCOMPARE(found.size(), 1);
    grid->setCurrentIndex(found.first());
    MaterialsProgram::Press(*window, "CmdSeleziona");
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
    MaterialsProgram program;
    program.store.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.Type("Text5_0", "55");
    program.fixture.Run();
    QVERIFY(program.fixture.open.Result().has_value());
    program.fixture.Find<QToolButton>("Command1_0")->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    MaterialsProgram::Search(*window, "tufo di prova");
    QTest::keyClick(window->findChild<QLineEdit*>("TextCerca"), Qt::Key_Return);
    QVERIFY(!program.fixture.open.Result().has_value());
    QCOMPARE(program.fixture.Find<QLineEdit>("Text5_0")->text(), QString("173"));
  }

  void aMaterialIsDraggedFromTheTreeOntoARow() {
    MaterialsProgram program;
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
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    program.fixture.open.Edit([](elements::Setup& setup) { setup.leaf1.count = 2; });
    auto* tree = program.OpenTree();
    MaterialsProgram::Search(*tree, "cartongesso");
    auto* view = tree->findChild<QTreeView*>("Treeview1");
    const std::string name = view->currentIndex().data().toString().toStdString();
    const auto before = program.fixture.open.Setup();
    QTest::keyClick(view, Qt::Key_Return);
    QVERIFY2(program.fixture.open.Setup() == before, "the focus stands in no material list");
    program.List(LayerGroup::kLeaf1, 1)->setFocus();
    MaterialsProgram::Search(*tree, "lana di roccia 100");
    QCOMPARE(view->currentIndex().parent().row(), 1);
    QTest::keyClick(view, Qt::Key_Return);
    QVERIFY2(program.fixture.open.Setup() == before, "a wool is no wall");
    const auto* hint = tree->findChild<QLabel*>("LabelGuida");
    QVERIFY(hint->text().startsWith("Nessun elenco per questo materiale"));
    MaterialsProgram::Search(*tree, "cartongesso");
    QTest::keyClick(view, Qt::Key_Return);
    QVERIFY(!hint->text().startsWith("Nessun elenco"));
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 1).listed, name);
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, before.leaf1.rows[0].listed);
  }

  void aCopiedNameIsPastedIntoARow() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    auto* tree = program.OpenTree();
    MaterialsProgram::Search(*tree, "intonaco");
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

  void theProjectsThatUseAMaterialAreFound() {
    MaterialsProgram program;
    const QString documents = program.folder.filePath("documenti");
    QDir().mkpath(documents + "/cantiere");
    program.fixture.services.places.documents = documents.toStdString();
    QVERIFY(QFile::copy(EXAMPLES "/parete-forato-intonacata.drav", documents + "/cantiere/Casa.drav"));
    QFile damaged(documents + "/rotto.drav");
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("niente");
    damaged.close();
    program.fixture.window->OpenProject((documents + "/cantiere/Casa.drav").toStdString());
    const std::string name = program.fixture.open.Setup().leaf1.rows[1].slot.name;
    auto* list = program.OpenList();
    MaterialsProgram::Search(*list, QString::fromStdString(name));
    MaterialsProgram::Press(*list, "CommandUso");
    auto* found = list->findChild<QDialog*>("UsoMateriale");
    QVERIFY(found != nullptr);
    auto* projects = found->findChild<QTreeWidget*>("UsoProgetti");
    QTRY_COMPARE(projects->topLevelItemCount(), 1);
    const QTreeWidgetItem* project = projects->topLevelItem(0);
    QCOMPARE(project->text(0), QString("Casa"));
    QCOMPARE(project->text(1), QString("strati 2"));
    QCOMPARE(project->text(2), documents + "/cantiere");
    const QString said = found->findChild<QLabel*>("UsoEsito")->text();
    QVERIFY2(said.contains("progetti esaminati: 2"), qPrintable(said));
    QVERIFY2(said.contains("non si possono leggere: 1"), qPrintable(said));
    QVERIFY(found->findChild<QPlainTextEdit*>("UsoNonLetti")->toPlainText().endsWith("/rotto.drav"));
    QTest::keyClick(found, Qt::Key_Escape);
    QVERIFY(!found->isVisible());
  }

  void theTreeGoesWithTheMainWindow() {
    MaterialsProgram program;
    auto* tree = program.OpenTree();
    QVERIFY(program.OpenTree() == tree);
    program.fixture.window->close();
    QVERIFY(!tree->isVisible());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::MaterialCommandsTest)
#include "material_commands_test.moc"
