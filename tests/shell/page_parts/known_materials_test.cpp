#include "shell/page_parts/known_materials.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "shell/page_parts/material_facts.h"
#include "tests/shell/support/materials_program.h"

namespace velmar::shell {

/// Favourites, materials used last, and a material of one's own made from the one shown.
class KnownMaterialsTest : public QObject {
  Q_OBJECT

 private slots:
  void whatIsUsedAndWhatIsLikedStandsFirst() {
    const QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath("finestra.ini").toStdString();
    const QStringList names = {"a", "b", "c", "d", "e"};
    {
      KnownMaterials known(file);
      QCOMPARE(known.OnTop(MaterialFamily::kStructural, names), names);
      known.Use(MaterialFamily::kStructural, "c");
      known.Use(MaterialFamily::kStructural, "e");
      known.Use(MaterialFamily::kStructural, "gone");
      known.SetFavourite(MaterialFamily::kStructural, "d", true);
    }
    KnownMaterials known(file);
    QCOMPARE(known.OnTop(MaterialFamily::kStructural, names), QStringList({"d", "e", "c", "a", "b"}));
    QCOMPARE(known.OnTop(MaterialFamily::kFibrous, names), names);
    known.SetFavourite(MaterialFamily::kStructural, "d", false);
    known.Use(MaterialFamily::kStructural, "c");
    QCOMPARE(known.OnTop(MaterialFamily::kStructural, names), QStringList({"c", "e", "a", "b", "d"}));
    for (const char* name : {"1", "2", "3", "4", "5", "6"}) known.Use(MaterialFamily::kStructural, name);
    QCOMPARE(known.OnTop(MaterialFamily::kStructural, names), names);
  }

  void theListOpensWithWhatWasUsedLast() {
    MaterialsProgram program;
    program.Choose(elements::Calculation::kSingleWallGeneric);
    MaterialBox* list = program.List(LayerGroup::kLeaf1, 0);
    const QStringList table = program.Offered(LayerGroup::kLeaf1);
    const QString used = table.at(5);
    list->Put({MaterialFamily::kStructural, used});
    list->showPopup();
    QCOMPARE(program.Offered(LayerGroup::kLeaf1).constFirst(), used);
    QCOMPARE(list->currentText(), used);
    list->hidePopup();
    QStringList sorted = program.Offered(LayerGroup::kLeaf1);
    QCOMPARE(sorted.size(), table.size());
    sorted.removeFirst();
    QStringList others = table;
    others.removeAt(5);
    QCOMPARE(sorted, others);
  }

  void aListTellsWhatTellsItsMaterialsApart() {
    elements::MaterialLookup materials;
    materials.resilient = [](std::string_view) {
      elements::ResilientRecord mat;
      mat.values.dynamic_stiffness_mn_m3 = 21.0;
      mat.values.thickness_mm = 5.25;
      return std::optional(mat);
    };
    materials.structural = [](std::string_view) { return std::optional<elements::StructuralRecord>(); };
    QCOMPARE(MaterialFacts(materials, MaterialFamily::kResilient, "tappeto"),
             QString("s' 21 MN/m³ · 5,2 mm"));
    QCOMPARE(MaterialFacts(materials, MaterialFamily::kStructural, "niente"), QString());
  }

  void aCopyOfTheMaterialIsPutIntoItsRowAndEdited() {
    MaterialsProgram program;
    program.Choose(elements::Calculation::kSingleWallGeneric);
    program.fixture.Type("Text5_0", "123");
    const std::string name = program.Layer(LayerGroup::kLeaf1, 0).listed;
    std::string edited;
    program.edit = [&](const std::string& copy) {
      edited = copy;
      return std::nullopt;
    };
    auto* tools = program.fixture.Find<QToolButton>("AzioniCombo3_0");
    QTest::mouseClick(tools, Qt::LeftButton);
    tools->findChild<QAction*>("duplica_materiale")->trigger();
    QCOMPARE(edited, name + " (2)");
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, name + " (2)");
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).thickness_text, std::string("123"));
    QVERIFY(program.store.Find<StructuralMaterial>(name + " (2)").has_value());
    QVERIFY(program.Offered(LayerGroup::kLeaf1).contains(FromUtf8(name + " (2)")));
    program.fixture.Find<QAction>("annulla")->trigger();
    QCOMPARE(program.Layer(LayerGroup::kLeaf1, 0).listed, name);
  }
};

}  // namespace velmar::shell

QTEST_MAIN(velmar::shell::KnownMaterialsTest)
#include "known_materials_test.moc"
#include "shell/windows/phrases.h"
