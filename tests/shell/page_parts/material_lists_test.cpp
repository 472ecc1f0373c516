#include "shell/page_parts/material_lists.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTimer>
#include <QToolButton>

#include "application/projects.h"
#include "foundation/failure.h"
#include "tests/shell/support/materials_program.h"

namespace velmar::shell {

/// Lists, tree and layers after a material was stored, renamed or deleted.
class MaterialListsTest : public QObject {
  Q_OBJECT

 private slots:
  void aDeletedMaterialStaysInTheLayerThatHoldsIt() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const auto before = program.fixture.open.Setup();
    const std::string name = program.Layer(LayerGroup::kLeaf1, 0).listed;
    auto* tree = program.OpenTree();
    auto* window = program.OpenList();
    MaterialsProgram::Search(*window, QString::fromStdString(name));
    MaterialsProgram::Press(*window, "Command4");
    QCOMPARE(program.fixture.asked.size(), 1);
    QVERIFY(!program.store.Find<StructuralMaterial>(name));
    for (const LayerGroup group :
         {LayerGroup::kLeaf1, LayerGroup::kLeaf2, LayerGroup::kSeaLeaf1, LayerGroup::kSeaCavityDamping})
      QVERIFY(!program.Offered(group).contains(QString::fromStdString(name)));
    QVERIFY(!MaterialsProgram::Walls(*tree).contains(QString::fromStdString(name)));
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

  void aListOpensAtTheMaterialThatItsBoxShows() {
    MaterialsProgram program;
    program.fixture.window->OpenProject(EXAMPLES "/doppia-forati-lana.drav");
    QVERIFY(QTest::qWaitForWindowActive(program.fixture.window.get()));
    MaterialBox* box = program.List(LayerGroup::kLeaf1, 1);
    const QString shown = box->currentText();
    box->setFocus();
    box->showPopup();
    QCOMPARE(box->view()->currentIndex().data().toString(), shown);
    box->hidePopup();
    QCOMPARE(box->currentText(), shown);
  }

  void aTableThatCannotBeReadAnewIsToldAndTheListsStay() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const QStringList offered = program.Offered(LayerGroup::kLeaf1);
    program.fixture.services.material_names = [](MaterialFamily) -> std::vector<storage::ListedMaterial> {
      throw Failure({{std::string("Il file è in uso da un altro programma.")}}, "locked");
    };
    auto* window = program.OpenList();
    for (const int times : {1, 2}) {
      MaterialsProgram::Press(*window, "Aggiorna");
      QCOMPARE(program.fixture.told.size(), times);
    }
    QVERIFY(program.fixture.told[0].contains("in uso"));
    QVERIFY(offered.size() > 40);
    QCOMPARE(program.Offered(LayerGroup::kLeaf1), offered);
  }

  void aDatabaseThatFailsIsToldOnceAnActionAndEachTime() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const auto fails = [](std::string_view) -> std::optional<elements::StructuralRecord> {
      throw Failure({{std::string("Il file è in uso da un altro programma.")}}, "locked");
    };
    elements::MaterialLookup broken = program.fixture.services.materials;
    broken.structural = fails;
    broken.for_one_operation = {};
    program.fixture.services.materials =
        application::ForgivingLookup(broken, [&program](const Failure& failure) {
          program.fixture.told += Text(program.fixture.services.words, failure.UserMessage());
        });
    int told = 0;
    for (const char* rows : {"4", "6"}) {
      auto* count = program.fixture.Find<QComboBox>("Combo1");
      count->setFocus();
      count->lineEdit()->selectAll();
      QTest::keyClicks(count, rows);
      QTest::keyClick(count, Qt::Key_Tab);
      QCOMPARE(program.fixture.told.size(), ++told);
      program.fixture.Type("Text5_0", "77");
      QCOMPARE(program.fixture.told.size(), told);
    }
  }

  void aNewMaterialJoinsListsAndTree() {
    MaterialsProgram program;
    program.Choose(elements::Calculation::kDoubleWallSeaBrick);
    auto* tree = program.OpenTree();
    program.edit = [&](const std::string&) {
      program.store.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
      return MaterialChange{MaterialFamily::kStructural, "", "Tufo di prova", "pietre"};
    };
    auto* window = program.OpenList();
    MaterialsProgram::Press(*window, "Command3");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    QVERIFY(window->isVisible());
    for (const LayerGroup group : {LayerGroup::kLeaf1, LayerGroup::kLeaf2, LayerGroup::kSeaLeaf2,
                                   LayerGroup::kSeaDamping1, LayerGroup::kSeaCavityMass})
      QCOMPARE(program.Offered(group).last(), QString("Tufo di prova"));
    QVERIFY(MaterialsProgram::Walls(*tree).contains("Tufo di prova"));
    // The damping layers of a cavity learn of it with a fresh reading of the tables.
    QVERIFY(!program.Offered(LayerGroup::kSeaCavityDamping).contains("Tufo di prova"));
    MaterialsProgram::Press(*window, "Aggiorna");
    QVERIFY(program.Offered(LayerGroup::kSeaCavityDamping).contains("Tufo di prova"));
  }

  void theEditorStoresAMaterialThatIsThenPicked() {
    MaterialsProgram program;
    program.edit = {};
    program.MakeWindow(EditorOf(program.store, program.fixture.services.words));
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
    MaterialsProgram::Press(*window, "Command3");
    QVERIFY(program.fixture.told.isEmpty());
    QVERIFY(window->isVisible());
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    MaterialsProgram::Press(*window, "CmdSeleziona");
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, std::string("Tufo di prova"));
    QCOMPARE(program.fixture.Find<QLineEdit>("Text5_0")->text(), QString("250"));
  }

  void aNewMaterialJoinsTheListsThatItsKeywordPasses_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<bool>("joins");
    QTest::newRow("all") << "tutti"
                         << "murature" << true;
    QTest::newRow("its own") << "murature"
                             << "murature" << true;
    QTest::newRow("another") << "murature"
                             << "intonaci" << false;
    QTest::newRow("none") << "murature"
                          << "non specificata" << true;
    QTest::newRow("none, doors") << "porte"
                                 << "non specificata" << false;
    QTest::newRow("none, panes") << "vetrate"
                                 << "non specificata" << false;
  }
  void aNewMaterialJoinsTheListsThatItsKeywordPasses() {
    QFETCH(QString, filter);
    QFETCH(QString, keyword);
    QFETCH(bool, joins);
    MaterialsProgram program;
    program.Choose(elements::Calculation::kDoubleWallGeneric);
    auto* box = program.fixture.Find<QComboBox>("Combo7_0");
    QVERIFY(box->findText(filter) >= 0);
    emit box->textActivated(filter);
    const int before = program.List(LayerGroup::kLeaf1, 0)->count();
    program.edit = [&](const std::string&) {
      program.store.Add<StructuralMaterial>({Wall("Tufo di prova", 173, keyword.toStdString())});
      return MaterialChange{MaterialFamily::kStructural, "", "Tufo di prova", keyword.toStdString()};
    };
    auto* window = program.OpenList();
    MaterialsProgram::Press(*window, "Command3");
    QCOMPARE(program.Offered(LayerGroup::kLeaf1).contains("Tufo di prova"), joins);
    QCOMPARE(program.List(LayerGroup::kLeaf1, 0)->count(), before + (joins ? 1 : 0));
    QVERIFY(program.Offered(LayerGroup::kLeaf2).contains("Tufo di prova"));
    // Deleted again, it leaves every list.
    MaterialsProgram::Press(*window, "Command4");
    QCOMPARE(program.List(LayerGroup::kLeaf1, 0)->count(), before);
    QVERIFY(!program.Offered(LayerGroup::kLeaf2).contains("Tufo di prova"));
  }

  void aRenamedMaterialIsFollowed() {
    MaterialsProgram program;
    program.Choose(elements::Calculation::kDoubleWallSeaBrick);
    const std::string old_name = program.store.List(MaterialFamily::kStructural).at(2).name;
    const QString old_text = QString::fromStdString(old_name);
    program.edit = [&](const std::string& name) {
      program.store.Change<StructuralMaterial>(
          name, [](storage::StructuralRow& row) { row.record.values.name = "Nome nuovo"; });
      return MaterialChange{MaterialFamily::kStructural, name, "Nome nuovo", "murature"};
    };
    auto* window = program.OpenList();
    MaterialsProgram::Search(*window, old_text);
    MaterialsProgram::Press(*window, "CommandModifica");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Nome nuovo"));
    QVERIFY(!program.Offered(LayerGroup::kLeaf1).contains(old_text));
    QCOMPARE(program.Offered(LayerGroup::kLeaf1).last(), QString("Nome nuovo"));
    QVERIFY(program.Offered(LayerGroup::kSeaCavityDamping).contains(old_text));
    QVERIFY(!program.Offered(LayerGroup::kSeaCavityDamping).contains("Nome nuovo"));
  }

  void changesOfAnotherProgramAreSeenOnRefresh() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    auto* tree = program.OpenTree();
    auto* window = program.OpenList();
    const QString first =
        QString::fromStdString(program.store.List(MaterialFamily::kStructural).front().name);
    storage::MaterialStore other(program.store.File());
    other.Add<StructuralMaterial>({Wall("Tufo di prova", 173, "pietre")});
    other.Delete(MaterialFamily::kStructural, first.toStdString());
    QTest::keyClick(window, Qt::Key_F5);
    MaterialsProgram::Search(*window, "tufo di prova");
    QCOMPARE(window->findChild<QLineEdit*>("Text1")->text(), QString("Tufo di prova"));
    QVERIFY(program.Offered(LayerGroup::kLeaf1).contains("Tufo di prova"));
    QVERIFY(!program.Offered(LayerGroup::kLeaf1).contains(first));
    QVERIFY(MaterialsProgram::Walls(*tree).contains("Tufo di prova"));
  }

  void aDatabaseThatIsGoneLosesNothing() {
    MaterialsProgram program;
    program.fixture.Choose("TIPO_PARETE_SINGOLA_0");
    const auto before = program.fixture.open.Setup();
    const QStringList offered = program.Offered(LayerGroup::kLeaf1);
    program.fixture.Find<QToolButton>("Command1_0")->click();
    auto* window = program.fixture.Find<QDialog>("Form2");
    std::filesystem::rename(program.store.File(), program.store.File().string() + ".via");
    QTest::keyClick(window, Qt::Key_F5);
    MaterialsProgram::Press(*window, "CmdSeleziona");
    QCOMPARE(program.fixture.told.size(), 2);
    QVERIFY(program.fixture.open.Setup() == before);
    QVERIFY(program.Offered(LayerGroup::kLeaf1) == offered);
    std::filesystem::rename(program.store.File().string() + ".via", program.store.File());
    MaterialsProgram::Press(*window, "CmdSeleziona");
    QVERIFY(!window->isVisible());
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::MaterialListsTest)
#include "material_lists_test.moc"
