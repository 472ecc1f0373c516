#include "shell/materials/material_list_window.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/shell/materials/fake_source.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

class MaterialListWindowTest : public testing::Test {
 protected:
  MaterialListWindow& OpenFromMenu() { return Open(std::nullopt); }
  MaterialListWindow& OpenFor(MaterialFamily family, const std::string& shown = {}) {
    return Open(MaterialPick{family, shown, [this](const std::string& name) { taken_.push_back(name); }});
  }
  MaterialListWindow& Open(std::optional<MaterialPick> pick) {
    window_ = std::make_unique<MaterialListWindow>(
        boxes_.Tools(), source_ ? *source_ : materials_.Source(), std::move(pick),
        [this](MaterialFamily, const std::string&) { return used_; });
    MaterialListWindow* window = window_.get();
    QObject::connect(window, &MaterialListWindow::Changed, window,
                     [this](const MaterialChange& change) { changed_.push_back(change.name); });
    QObject::connect(window, &MaterialListWindow::Removed, window,
                     [this](MaterialFamily, const std::string& name) { removed_.push_back(name); });
    QObject::connect(window, &MaterialListWindow::Refreshed, window, [this] { ++refreshed_; });
    window_->show();
    return *window_;
  }

  QTableView& Grid() { return Child<QTableView>(*window_, "DataGrid1"); }
  QLineEdit& Search() { return Child<QLineEdit>(*window_, "TextCerca"); }
  QPushButton& Button(const char* name) { return Child<QPushButton>(*window_, name); }
  void Press(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
  QString Selected() { return Child<QLineEdit>(*window_, "Text1").text(); }
  QString Cell(int row, int column) { return Grid().model()->index(row, column).data().toString(); }
  int Rows() { return Grid().model()->rowCount(); }

  FakeBoxes boxes_;
  FakeMaterials materials_;
  std::optional<MaterialSource> source_;
  std::unique_ptr<MaterialListWindow> window_;
  std::vector<std::string> taken_;
  std::vector<std::string> changed_;
  std::vector<std::string> removed_;
  std::vector<int> used_;
  int refreshed_ = 0;
};

TEST_F(MaterialListWindowTest, FromTheMenuTheOptionChoosesTheFamily) {
  OpenFromMenu();
  EXPECT_EQ(window_->windowTitle(), "Lista materiali - Materiali strutturali");
  EXPECT_EQ(Cell(0, 0), "Mattone pieno");
  EXPECT_EQ(Selected(), "Mattone pieno");
  Child<QRadioButton>(*window_, "Option1_1").click();
  EXPECT_EQ(Selected(), "Materassino");
  Child<QRadioButton>(*window_, "Option1_2").click();
  EXPECT_EQ(Selected(), "Lana di roccia");
  EXPECT_EQ(Child<QRadioButton>(*window_, "Option1_2").text(), "Intercapedine");
  Child<QRadioButton>(*window_, "Option1_0").click();
  EXPECT_EQ(Rows(), 4);
}

TEST_F(MaterialListWindowTest, FromTheMenuThereIsNoRowToSelectFor) {
  OpenFromMenu();
  EXPECT_FALSE(Button("CmdSeleziona").isVisible());
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MaterialListWindowTest, ForARowTheFamilyIsSettledAndTheListBeginsAtItsMaterial) {
  OpenFor(MaterialFamily::kStructural, "Èlite 25");
  EXPECT_FALSE(Child<QRadioButton>(*window_, "Option1_0").isVisible());
  EXPECT_EQ(Selected(), "Èlite 25");
}

TEST_F(MaterialListWindowTest, AMaterialThatTheRowHasButNoTableBeginsAtTheTop) {
  OpenFor(MaterialFamily::kStructural, "Materiale eliminato");
  EXPECT_EQ(Selected(), "Mattone pieno");
}

TEST_F(MaterialListWindowTest, SelectionGoesWithTheButtonEnterAndADoubleClick) {
  OpenFor(MaterialFamily::kStructural);
  Grid().setCurrentIndex(Grid().model()->index(1, 0));
  Press("CmdSeleziona");
  EXPECT_FALSE(window_->isVisible());
  OpenFor(MaterialFamily::kStructural);
  QTest::keyClick(&Grid(), Qt::Key_Down);
  QTest::keyClick(&Grid(), Qt::Key_Down);
  QTest::keyClick(&Grid(), Qt::Key_Return);
  EXPECT_FALSE(window_->isVisible());
  OpenFor(MaterialFamily::kFibrous);
  const QRect cell = Grid().visualRect(Grid().model()->index(1, 0));
  QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
  QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, {}, cell.center());
  EXPECT_FALSE(window_->isVisible());
  EXPECT_THAT(taken_, testing::ElementsAre("intonaco di gesso", "Èlite 25", "Polistirene"));
}

TEST_F(MaterialListWindowTest, TheKeyboardAloneSearchesMovesAndSelects) {
  OpenFor(MaterialFamily::kStructural);
  window_->activateWindow();
  QTest::keyClicks(&Search(), "gesso");
  EXPECT_EQ(Rows(), 2);
  EXPECT_EQ(Selected(), "intonaco di gesso");
  QTest::keyClick(&Search(), Qt::Key_Down);
  EXPECT_EQ(Selected(), "Cartongesso");
  QTest::keyClick(&Search(), Qt::Key_Return);
  EXPECT_THAT(taken_, testing::ElementsAre("Cartongesso"));
}

TEST_F(MaterialListWindowTest, LettersTypedAtTheGridGoToTheSearch) {
  OpenFor(MaterialFamily::kStructural);
  QTest::keyClicks(&Grid(), "mat");
  EXPECT_EQ(Search().text(), "mat");
  EXPECT_EQ(Rows(), 1);
}

TEST_F(MaterialListWindowTest, NothingIsSelectedWhenNothingIsFound) {
  OpenFor(MaterialFamily::kStructural);
  QTest::keyClicks(&Search(), "zzz");
  EXPECT_EQ(Selected(), "");
  for (const char* button : {"CmdSeleziona", "Command4", "CommandModifica"})
    EXPECT_FALSE(Button(button).isEnabled()) << button;
  QTest::keyClick(&Search(), Qt::Key_Return);
  QTest::keyClick(&Grid(), Qt::Key_Delete);
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(taken_.empty());
  EXPECT_TRUE(boxes_.questions.isEmpty());
}

TEST_F(MaterialListWindowTest, AClickOnAHeadingSortsNumbersAsNumbers) {
  OpenFromMenu();
  QHeaderView& header = *Grid().horizontalHeader();
  const int density = 2;
  const QPoint heading(header.sectionViewportPosition(density) + 5, header.height() / 2);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, heading);
  EXPECT_EQ(Cell(0, density), "99,5");
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, heading);
  EXPECT_EQ(Cell(0, density), "1800");
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, heading);
  EXPECT_EQ(Cell(3, density), "99,5") << "a third click gives the table's order back";
}

TEST_F(MaterialListWindowTest, DeletingAsksAndTellsTheMainWindow) {
  OpenFromMenu();
  QTest::keyClick(&Grid(), Qt::Key_Down);
  QTest::keyClick(&Grid(), Qt::Key_Delete);
  EXPECT_EQ(boxes_.questions,
            QStringList{"Eliminare definitivamente dal database il materiale \"intonaco di gesso\"?"});
  EXPECT_THAT(removed_, testing::ElementsAre("intonaco di gesso"));
  EXPECT_EQ(Rows(), 3);
  EXPECT_EQ(Selected(), "Èlite 25");
}

TEST_F(MaterialListWindowTest, ADeclinedDeletionChangesNothing) {
  boxes_.answer = false;
  OpenFromMenu();
  Press("Command4");
  EXPECT_EQ(boxes_.questions.size(), 1);
  EXPECT_EQ(materials_.structural.size(), 4U);
  EXPECT_TRUE(removed_.empty());
}

TEST_F(MaterialListWindowTest, ADatabaseThatCannotBeChangedIsToldAndNothingIsLost) {
  OpenFromMenu();
  materials_.locked = true;
  Press("Command4");
  EXPECT_EQ(boxes_.told, QStringList{"Il file è in uso da un altro programma."});
  EXPECT_TRUE(removed_.empty());
  EXPECT_EQ(Rows(), 4);
  materials_.locked = false;
  Press("Command4");
  EXPECT_THAT(removed_, testing::ElementsAre("Mattone pieno"));
}

TEST_F(MaterialListWindowTest, ADatabaseThatCannotBeReadLeavesTheWindowUsable) {
  materials_.locked = true;
  OpenFor(MaterialFamily::kStructural);
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Rows(), 0);
  EXPECT_FALSE(Button("CmdSeleziona").isEnabled());
  materials_.locked = false;
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Rows(), 4);
  EXPECT_EQ(refreshed_, 1);
  materials_.locked = true;
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(boxes_.told.size(), 2);
  EXPECT_EQ(Rows(), 4) << "what was shown stays";
  EXPECT_EQ(refreshed_, 1);
  Press("CmdSeleziona");
  EXPECT_TRUE(taken_.empty());
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MaterialListWindowTest, ChangesMadeElsewhereAreSeenOnRefresh) {
  OpenFromMenu();
  Grid().setCurrentIndex(Grid().model()->index(2, 0));
  materials_.structural.insert(materials_.structural.begin(), Wall("Nuovo blocco", 700, "murature"));
  materials_.structural[3].record.values.density_kg_m3 = 1234;
  Press("Aggiorna");
  EXPECT_EQ(Rows(), 5);
  EXPECT_EQ(Selected(), "Èlite 25") << "the selected material stays selected";
  EXPECT_EQ(Cell(3, 2), "1234");
}

TEST_F(MaterialListWindowTest, AMaterialThatAnotherProgramDeletedIsNotTaken) {
  OpenFor(MaterialFamily::kStructural);
  materials_.structural.erase(materials_.structural.begin());
  Press("CmdSeleziona");
  EXPECT_TRUE(taken_.empty());
  EXPECT_EQ(boxes_.told.size(), 1);
  EXPECT_EQ(Rows(), 3);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MaterialListWindowTest, ANewMaterialIsSelectedThoughItWasNotSearchedFor) {
  OpenFromMenu();
  QTest::keyClicks(&Search(), "mattone");
  materials_.structural.push_back(Wall("Tufo", 1500, "pietre"));
  materials_.edited = MaterialChange{MaterialFamily::kStructural, "", "Tufo", "pietre"};
  Press("Command3");
  EXPECT_THAT(materials_.opened, testing::ElementsAre(""));
  EXPECT_EQ(Selected(), "Tufo");
  EXPECT_THAT(changed_, testing::ElementsAre("Tufo"));
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(MaterialListWindowTest, AChangedNameIsFollowed) {
  OpenFromMenu();
  Grid().setCurrentIndex(Grid().model()->index(1, 0));
  materials_.structural[1].record.values.name = "Intonaco di calce";
  materials_.edited =
      MaterialChange{MaterialFamily::kStructural, "intonaco di gesso", "Intonaco di calce", "intonaci"};
  QTest::keyClick(&Grid(), Qt::Key_Return);
  EXPECT_THAT(materials_.opened, testing::ElementsAre("intonaco di gesso"));
  EXPECT_EQ(Selected(), "Intonaco di calce");
}

TEST_F(MaterialListWindowTest, AnEditorThatWasLeftChangesNothing) {
  OpenFromMenu();
  Press("CommandModifica");
  EXPECT_EQ(materials_.opened.size(), 1U);
  EXPECT_TRUE(changed_.empty());
}

TEST_F(MaterialListWindowTest, WithoutAnEditorItsButtonsRest) {
  source_ = materials_.Source();
  source_->edit = {};
  OpenFromMenu();
  EXPECT_FALSE(Button("Command3").isEnabled());
  EXPECT_FALSE(Button("CommandModifica").isEnabled());
  EXPECT_TRUE(Button("Command4").isEnabled());
}

TEST_F(MaterialListWindowTest, TheRestOfTheTableIsShownOnRequest) {
  OpenFor(MaterialFamily::kFibrous);
  const int absorption = 11;
  ASSERT_EQ(Grid().model()->headerData(absorption, Qt::Horizontal).toString(), "α 125");
  EXPECT_TRUE(Grid().isColumnHidden(absorption));
  Child<QCheckBox>(*window_, "CheckColonne").click();
  EXPECT_FALSE(Grid().isColumnHidden(absorption));
  EXPECT_GT(Grid().columnWidth(absorption), 20);
}

TEST_F(MaterialListWindowTest, TheNameTakesWhatTheOtherColumnsLeave) {
  OpenFromMenu();
  window_->resize(1700, 500);
  const QHeaderView& header = *Grid().horizontalHeader();
  EXPECT_EQ(header.length(), Grid().viewport()->width());
  const int name = Grid().columnWidth(0);
  const int density = Grid().columnWidth(2);
  window_->resize(1800, 500);
  EXPECT_EQ(Grid().columnWidth(0), name + 100);
  EXPECT_EQ(Grid().columnWidth(2), density);
}

TEST_F(MaterialListWindowTest, SizeColumnsAndOrderAreRememberedPerFamily) {
  const QTemporaryDir folder;
  boxes_.memory = std::make_unique<QSettings>(folder.filePath("finestre.ini"), QSettings::IniFormat);
  OpenFromMenu();
  window_->resize(1001, 555);
  Grid().setColumnWidth(2, 234);
  Grid().sortByColumn(0, Qt::AscendingOrder);
  Child<QRadioButton>(*window_, "Option1_1").click();
  Grid().setColumnWidth(2, 321);
  window_.reset();
  OpenFromMenu();
  EXPECT_EQ(window_->size(), QSize(1001, 555));
  EXPECT_EQ(Grid().columnWidth(2), 234);
  EXPECT_EQ(Cell(0, 0), "Cartongesso");
  Child<QRadioButton>(*window_, "Option1_1").click();
  EXPECT_EQ(Grid().columnWidth(2), 321);
}

TEST_F(MaterialListWindowTest, TenThousandMaterials) {
  for (int i = 0; i < 10000; ++i)
    materials_.structural.push_back(
        Wall("Materiale numero " + std::to_string(i * 7919 % 10000), 500 + i % 1500, "prova"));
  OpenFromMenu();
  QTest::keyClicks(&Search(), "numero 49");
  EXPECT_EQ(Rows(), 299);
  Search().clear();
  Grid().sortByColumn(0, Qt::AscendingOrder);
  EXPECT_EQ(Cell(3, 0), "Materiale numero 0");
  EXPECT_EQ(Cell(5, 0), "Materiale numero 2") << "numbers in names count as numbers";
}

TEST_F(MaterialListWindowTest, ADeletedMaterialIsPutBack) {
  source_ = materials_.Source();
  source_->add = [this](MaterialFamily, const MaterialCells& cells) -> std::optional<Message> {
    materials_.structural.push_back(storage::RowFromCells<elements::StructuralMaterial>(cells));
    return std::nullopt;
  };
  OpenFromMenu();
  EXPECT_FALSE(Button("CommandAnnullaElimina").isEnabled());
  QTest::keyClick(&Grid(), Qt::Key_Down);
  QTest::keyClick(&Grid(), Qt::Key_Delete);
  EXPECT_EQ(Rows(), 3);
  Press("CommandAnnullaElimina");
  EXPECT_EQ(Rows(), 4);
  EXPECT_EQ(Selected(), "intonaco di gesso");
  EXPECT_EQ(materials_.structural.back().source, "prova di laboratorio");
  EXPECT_THAT(changed_, testing::ElementsAre("intonaco di gesso"));
  EXPECT_FALSE(Button("CommandAnnullaElimina").isEnabled());
}

TEST_F(MaterialListWindowTest, ItSaysWhereTheOpenCalculationUsesAMaterial) {
  used_ = {2, 5};
  OpenFor(MaterialFamily::kStructural);
  EXPECT_EQ(Child<QLabel>(*window_, "LabelUso").text(), "Nel calcolo aperto è usato negli strati 2, 5");
  used_ = {};
  QTest::keyClick(&Grid(), Qt::Key_Down);
  EXPECT_EQ(Child<QLabel>(*window_, "LabelUso").text(), "");
}

}  // namespace
}  // namespace velmar::shell
