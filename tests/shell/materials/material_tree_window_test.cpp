#include "shell/materials/material_tree_window.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QTreeView>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shell/materials/fake_source.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

class MaterialTreeWindowTest : public testing::Test {
 protected:
  void Open() {
    window_ = std::make_unique<MaterialTreeWindow>(boxes_.Tools(), materials_.Source(),
                                                   [this](const DraggedMaterial& material) {
                                                     put_ << material.name;
                                                     return there_is_a_place_;
                                                   });
    window_->show();
  }
  QTreeView& Tree() { return Child<QTreeView>(*window_, "Treeview1"); }
  QLineEdit& Search() { return Child<QLineEdit>(*window_, "TextCerca"); }
  QModelIndex Root(int row) { return Tree().model()->index(row, 0); }
  QStringList Children(int root) {
    QStringList names;
    for (int row = 0; row < Tree().model()->rowCount(Root(root)); ++row)
      names << Tree().model()->index(row, 0, Root(root)).data().toString();
    return names;
  }
  void Select(int root, int row) { Tree().setCurrentIndex(Tree().model()->index(row, 0, Root(root))); }
  QString Label(const char* name) { return Child<QLabel>(*window_, name).text(); }

  FakeBoxes boxes_;
  FakeMaterials materials_;
  std::unique_ptr<MaterialTreeWindow> window_;
  QStringList put_;
  bool there_is_a_place_ = true;
};

TEST_F(MaterialTreeWindowTest, ThreeBoldRootsWithSortedChildren) {
  Open();
  ASSERT_EQ(Tree().model()->rowCount(), 3);
  EXPECT_EQ(Root(0).data(MaterialTreeModel::kKeyRole).toString(), "Materiali strutturali");
  EXPECT_EQ(Root(1).data().toString(), "Materiali fibrosi");
  EXPECT_TRUE(Root(2).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(Children(0), (QStringList{"Cartongesso", "Èlite 25", "intonaco di gesso", "Mattone pieno"}));
  const QModelIndex wool = Tree().model()->index(0, 0, Root(1));
  EXPECT_EQ(wool.data(MaterialTreeModel::kKeyRole).toString(), "MFLana di roccia");
  EXPECT_EQ(window_->windowTitle(), "Lista materiali");
}

TEST_F(MaterialTreeWindowTest, AClickShowsTheProperties) {
  Open();
  Select(0, 3);
  EXPECT_EQ(Child<QGroupBox>(*window_, "LabelCarattMat").title(), "Caratteristiche del materiale");
  EXPECT_EQ(Label("LabelNome"), "Mattone pieno");
  EXPECT_EQ(Label("LabelSpessore"), "120");
  EXPECT_EQ(Label("LabelDensita"), "1800");
  EXPECT_EQ(Label("LabelYoung"), "12,6");
  EXPECT_FALSE(Child<QLabel>(*window_, "LabelResistenza").isVisible());
}

TEST_F(MaterialTreeWindowTest, TheFlowResistanceIsOfFibrousMaterialsAndNullShowsNothing) {
  Open();
  Select(1, 0);
  EXPECT_TRUE(Child<QLabel>(*window_, "LabelResistenza").isVisible());
  EXPECT_EQ(Label("LabelResistenza"), "12000");
  EXPECT_EQ(Label("LabelYoung"), "");
  Select(1, 1);
  EXPECT_EQ(Label("LabelResistenza"), "");
  EXPECT_EQ(Label("LabelYoung"), "0,05");
  Select(2, 0);
  EXPECT_EQ(Label("LabelNome"), "Materassino");
  EXPECT_EQ(Label("LabelYoung"), "");
}

TEST_F(MaterialTreeWindowTest, ARootHasNoProperties) {
  Open();
  Select(0, 0);
  Tree().setCurrentIndex(Root(0));
  EXPECT_EQ(Label("LabelNome"), "");
}

TEST_F(MaterialTreeWindowTest, PropertiesAreReadAtTheClick) {
  Open();
  materials_.structural[0].record.values.density_kg_m3 = 1750;
  Select(0, 3);
  EXPECT_EQ(Label("LabelDensita"), "1750");
}

TEST_F(MaterialTreeWindowTest, EnterAndADoubleClickPutTheMaterialIntoTheList) {
  Open();
  Select(0, 1);
  QTest::keyClick(&Tree(), Qt::Key_Return);
  const QRect place = Tree().visualRect(Tree().model()->index(2, 0, Root(0)));
  QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place.center());
  QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, place.center());
  EXPECT_EQ(put_, (QStringList{"Èlite 25", "intonaco di gesso"}));
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MaterialTreeWindowTest, WithoutAPlaceItSaysWhatToDo) {
  there_is_a_place_ = false;
  Open();
  Select(0, 1);
  const QString before = Label("LabelGuida");
  QTest::keyClick(&Tree(), Qt::Key_Return);
  EXPECT_TRUE(Label("LabelGuida").startsWith("Nessun elenco per questo materiale"));
  Select(0, 2);
  EXPECT_EQ(Label("LabelGuida"), before);
}

TEST_F(MaterialTreeWindowTest, TheSearchKeepsTheRootsAndFindsByNameAndKeyword) {
  Open();
  QTest::keyClicks(&Search(), "MURA");
  EXPECT_EQ(Tree().model()->rowCount(), 3);
  EXPECT_EQ(Children(0), (QStringList{"Èlite 25", "Mattone pieno"}));
  EXPECT_TRUE(Children(1).isEmpty());
  EXPECT_EQ(Label("LabelNome"), "Èlite 25");
  QTest::keyClick(&Search(), Qt::Key_Down);
  EXPECT_EQ(Label("LabelNome"), "Mattone pieno");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_EQ(put_, QStringList{"Mattone pieno"});
  Search().clear();
  EXPECT_EQ(Children(0).size(), 4);
  QTest::keyClicks(&Search(), "lana");
  EXPECT_EQ(Label("LabelNome"), "Lana di roccia");
}

TEST_F(MaterialTreeWindowTest, TheCopyKeyCopiesTheName) {
  Open();
  Select(0, 3);
  Tree().setFocus();
  QTest::keyClick(&Tree(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "Mattone pieno");
}

TEST_F(MaterialTreeWindowTest, ADragCarriesFamilyAndName) {
  Open();
  const QModelIndex wool = Tree().model()->index(0, 0, Root(1));
  EXPECT_TRUE(wool.flags() & Qt::ItemIsDragEnabled);
  EXPECT_FALSE(Root(1).flags() & Qt::ItemIsDragEnabled);
  const std::unique_ptr<QMimeData> mime(Tree().model()->mimeData({wool}));
  const auto material = FromMime(*mime);
  ASSERT_TRUE(material.has_value());
  EXPECT_EQ(material->family, MaterialFamily::kFibrous);
  EXPECT_EQ(material->name, "Lana di roccia");
  EXPECT_EQ(mime->text(), "Lana di roccia");
}

TEST_F(MaterialTreeWindowTest, ARefreshKeepsSelectionAndUnfoldedRoots) {
  Open();
  Tree().expand(Root(1));
  Select(1, 1);
  materials_.fibrous.erase(materials_.fibrous.begin());
  materials_.structural.push_back(Wall("Tufo", 1500, ""));
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Children(0).size(), 5);
  EXPECT_EQ(Children(1), QStringList{"Polistirene"});
  EXPECT_EQ(Label("LabelNome"), "Polistirene");
  EXPECT_TRUE(Tree().isExpanded(Root(1)));
  EXPECT_FALSE(Tree().isExpanded(Root(2)));
}

TEST_F(MaterialTreeWindowTest, ADeletedMaterialLeavesItsRootSelected) {
  Open();
  Select(2, 0);
  materials_.resilient.clear();
  window_->Refresh(MaterialFamily::kResilient);
  EXPECT_EQ(Label("LabelNome"), "");
  EXPECT_TRUE(Children(2).isEmpty());
}

TEST_F(MaterialTreeWindowTest, ADatabaseThatCannotBeReadIsToldAndTheTreeStays) {
  Open();
  materials_.locked = true;
  Select(0, 1);
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Label("LabelNome"), "");
  boxes_.told.clear();
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(boxes_.told.size(), 1) << "once, not for every table";
  EXPECT_EQ(Children(0).size(), 4);
  materials_.locked = false;
  Select(0, 2);
  EXPECT_EQ(Label("LabelNome"), "intonaco di gesso");
}

TEST_F(MaterialTreeWindowTest, TenThousandMaterials) {
  for (int i = 0; i < 10000; ++i)
    materials_.structural.push_back(
        Wall("Materiale numero " + std::to_string(i * 7919 % 10000), 500 + i % 1500, "prova"));
  Open();
  QTest::keyClicks(&Search(), "numero 49");
  EXPECT_EQ(Children(0).size(), 299);
}

}  // namespace
}  // namespace velmar::shell
