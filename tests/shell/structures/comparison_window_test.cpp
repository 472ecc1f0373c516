#include "shell/structures/comparison_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/drawing/chart_scale.h"
#include "presentation/drawing/compared_looks.h"
#include "shell/structures/difference_view.h"
#include "shell/structures/library_tree.h"
#include "tests/shell/structures/fake_sources.h"

namespace velmar::structures {
namespace {

FakeLibrary ComparisonLibrary() {
  FakeLibrary library = SmallLibrary();
  library.files[Branch::kFieldWalls] = {"In opera"};
  library.files[Branch::kFloors] = {"Solai"};
  library.files[Branch::kCoverings] = {"Tappeti"};
  library.files[Branch::kLinings] = {"Contropareti"};
  library.files[Branch::kFieldFloors] = {"Solai in opera"};
  library.files[Branch::kCalculatedWalls] = {"Database_teorico"};
  library.tests["In opera"] = {TestOf("Cantiere A", 31)};
  return library;
}

class ComparisonWindowTest : public testing::Test {
 protected:
  ComparisonWindow& Open(elements::Family family = elements::Family::kSingle) {
    window_ =
        std::make_unique<ComparisonWindow>(boxes_.Tools(), library_.Source(), family,
                                           [this](const Overlay& overlay) { drawn_.push_back(overlay); });
    window_->show();
    return *window_;
  }
  void Choose(const char* tree, const QString& file, const char* list, int row) {
    OpenLibraryFile(*window_, tree, file);
    SelectTest(*window_, list, row);
  }
  /// Chooses a structure and presses the button that keeps it.
  void Keep(const char* tree, const QString& file, const char* list, int row, const char* button) {
    Choose(tree, file, list, row);
    Child<QPushButton>(*window_, button).click();
  }
  /// The texts of the columns that are shown, a line each.
  QStringList Lines() {
    const auto& table = Child<QTableWidget>(*window_, "TabellaConfronto");
    QStringList lines;
    for (int row = 0; row < table.rowCount(); ++row) {
      QStringList cells;
      for (int column = 0; column < table.columnCount(); ++column) {
        if (!table.isColumnHidden(column)) cells << table.item(row, column)->text();
      }
      lines << cells.join(" | ");
    }
    return lines;
  }
  QStringList AddedNames() const {
    QStringList names;
    for (const presentation::FurtherCurve& curve : drawn_.back().added)
      names << QString::fromStdString(curve.name);
    return names;
  }
  void SelectCurve(int row) { Child<QTableWidget>(*window_, "TabellaConfronto").setCurrentCell(row, 0); }
  void CountFrom(int index) {
    auto& from = Child<QComboBox>(*window_, "ConfrontoRispetto");
    from.setFocus();
    from.setCurrentIndex(index);
    emit from.activated(index);
  }
  QCheckBox& Check(const char* name) { return Child<QCheckBox>(*window_, name); }
  /// Every file under the tree's nodes.
  QStringList Files(const char* tree) {
    QStringList files;
    QTreeWidget& widget = Child<QTreeWidget>(*window_, tree);
    for (QTreeWidgetItem* item : widget.findItems("*", Qt::MatchWildcard | Qt::MatchRecursive)) {
      if (FileOf(item)) files << item->text(0);
    }
    return files;
  }

  FakeBoxes boxes_;
  FakeLibrary library_ = ComparisonLibrary();
  std::unique_ptr<ComparisonWindow> window_;
  std::vector<Overlay> drawn_;
};

TEST_F(ComparisonWindowTest, StartsUntickedAndDrawsNothing) {
  Open();
  EXPECT_EQ(window_->windowTitle(), "VELMARpro - confronto strutture");
  EXPECT_FALSE(Check("Check1").isChecked());
  EXPECT_FALSE(Check("Check2").isChecked());
  EXPECT_EQ(Check("Check1").text().remove('&'), "Attiva confronto con dati di laboratorio");
  EXPECT_TRUE(drawn_.empty());
}

struct TreeCase {
  const char* name;
  elements::Family family;
  QStringList laboratory;
  QStringList in_situ;
};
class ComparisonTreeTest : public ComparisonWindowTest, public testing::WithParamInterface<TreeCase> {};

TEST_P(ComparisonTreeTest, OffersTheDatabasesOfTheFamily) {
  Open(GetParam().family);
  EXPECT_EQ(Files("TreeView1"), GetParam().laboratory);
  EXPECT_EQ(Files("TreeView2"), GetParam().in_situ);
}

INSTANTIATE_TEST_SUITE_P(
    Families, ComparisonTreeTest,
    testing::Values(
        TreeCase{
            "Single", elements::Family::kSingle, {"Database_teorico", "Murature", "Vetrate"}, {"In opera"}},
        TreeCase{
            "Facade", elements::Family::kFacade, {"Database_teorico", "Murature", "Vetrate"}, {"In opera"}},
        TreeCase{"Impact", elements::Family::kImpact, {"Solai", "Tappeti"}, {"Solai in opera"}},
        TreeCase{"Lining",
                 elements::Family::kLining,
                 {"Database_teorico", "Murature", "Vetrate", "Contropareti", "Tappeti"},
                 {"In opera"}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(ComparisonWindowTest, AnEntryShowsItsDescriptionAndRating) {
  Open();
  Choose("TreeView1", "Murature", "List1", 1);
  EXPECT_EQ(Child<QLabel>(*window_, "Label7").text(), "Murature");
  EXPECT_EQ(Child<QLabel>(*window_, "Label2").text(), "53 dB");
  EXPECT_EQ(Child<QPlainTextEdit>(*window_, "Text1").toPlainText(), "Pieno 25: descrizione");
  EXPECT_TRUE(drawn_.empty());
}

TEST_F(ComparisonWindowTest, TickingLaysTheCurvesOverAndKeepsTheirNames) {
  Open();
  Choose("TreeView1", "Murature", "List1", 1);
  Choose("TreeView2", "In opera", "List2", 0);
  Check("Check1").click();
  Check("Check2").click();
  Picture(*window_, "form8");
  ASSERT_EQ(drawn_.size(), 2U);
  EXPECT_FALSE(drawn_[0].in_situ.has_value());
  ASSERT_TRUE(drawn_[1].laboratory && drawn_[1].in_situ);
  EXPECT_EQ((*drawn_[1].laboratory)[10], 48.0);
  EXPECT_EQ((*drawn_[1].in_situ)[10], 41.0);
  EXPECT_EQ(drawn_[1].laboratory_name, "Pieno 25");
  EXPECT_EQ(drawn_[1].in_situ_name, "Cantiere A");
  Check("Check1").click();
  EXPECT_FALSE(drawn_[2].laboratory.has_value());
  EXPECT_EQ(drawn_[2].laboratory_name, "");
}

TEST_F(ComparisonWindowTest, AnotherEntryOfATickedSideRedraws) {
  Open();
  Choose("TreeView1", "Murature", "List1", 1);
  Check("Check1").click();
  SelectTest(*window_, "List1", 2);
  ASSERT_EQ(drawn_.size(), 2U);
  EXPECT_EQ((*drawn_.back().laboratory)[0], 33.0);
}

TEST_F(ComparisonWindowTest, TickingWithoutAnEntryDrawsNoFurtherCurve) {
  Open();
  Check("Check1").click();
  ASSERT_EQ(drawn_.size(), 1U);
  EXPECT_FALSE(drawn_[0].laboratory.has_value()) << "a legend would name a curve that is not there";
}

TEST_F(ComparisonWindowTest, ABandWithoutMeasurementIsBridged) {
  library_.tests["Murature"][0].part.bands_db[7].reset();
  library_.tests["Murature"][0].part.bands_db[8] = calculation::kNotMeasuredDb;
  Open();
  Choose("TreeView1", "Murature", "List1", 0);
  Check("Check1").click();
  const auto segments = presentation::CurveSegments(*drawn_[0].laboratory, 0, 20);
  EXPECT_THAT(segments, testing::Contains(presentation::ChartSegment{6, 9}));
}

presentation::CurveChart Calculated(bool autoscale) {
  presentation::CurveChart chart;
  chart.values.fill(45.0);
  chart.autoscale = autoscale;
  return chart;
}

TEST_F(ComparisonWindowTest, TheOverlayWidensTheRangeOnlyWithAutoscale) {
  library_.tests["Murature"][0] = TestOf("Molto alta", 70);
  Open();
  Choose("TreeView1", "Murature", "List1", 0);
  Check("Check1").click();
  presentation::CurveChart chart = Calculated(true);
  LayOver(chart, drawn_[0]);
  EXPECT_EQ(presentation::RangeOf(chart).maximum, 110.0);
  EXPECT_EQ(presentation::RangeOf(chart).minimum, 40.0);
  chart = Calculated(false);
  LayOver(chart, drawn_[0]);
  EXPECT_EQ(presentation::RangeOf(chart).maximum, 80.0);
  EXPECT_EQ(presentation::RangeOf(chart).minimum, 10.0);
}

TEST_F(ComparisonWindowTest, AnInvalidResultClosesIt) {
  Open();
  Choose("TreeView1", "Murature", "List1", 0);
  Check("Check1").click();
  window_->ResultGone();
  EXPECT_FALSE(window_->isVisible());
  EXPECT_EQ(drawn_.size(), 1U);
}

TEST_F(ComparisonWindowTest, ReopenedItStartsUntickedWithNothingChosen) {
  Open();
  Choose("TreeView1", "Murature", "List1", 0);
  Check("Check1").click();
  QTest::keyClick(window_.get(), Qt::Key_Escape);
  EXPECT_FALSE(window_->isVisible());
  window_->show();
  EXPECT_FALSE(Check("Check1").isChecked());
  EXPECT_EQ(drawn_.size(), 1U);
  Check("Check1").click();
  EXPECT_FALSE(drawn_.back().laboratory.has_value());
  EXPECT_EQ(drawn_.back().laboratory_name, "");
}

TEST_F(ComparisonWindowTest, AFolderWithoutFilesGivesANodeWithoutChildren) {
  library_ = {};
  Open();
  EXPECT_EQ(Files("TreeView1"), QStringList());
  EXPECT_EQ(Child<QTreeWidget>(*window_, "TreeView2").topLevelItemCount(), 1);
}

TEST_F(ComparisonWindowTest, AFileThatCannotBeReadIsTold) {
  Open();
  library_.locked = true;
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  EXPECT_EQ(boxes_.told, QStringList{"Il file è in uso da un altro programma."});
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(ComparisonWindowTest, TabGoesAsOneReads) {
  Activate(Open());
  EXPECT_EQ(window_->focusWidget()->objectName(), "List1_cerca") << "a letter begins the search";
  Child<QWidget>(*window_, "TabellaConfronto").setFocus();
  EXPECT_EQ(TabStops(*window_),
            (QStringList{"TabellaConfronto", "ConfrontoRispetto", "qt_tabwidget_tabbar", "Check1",
                         "TreeView1", "Combo1", "List1_cerca", "List1", "Text1", "Command1"}));
  Keep("TreeView1", "Murature", "List1", 1, "ConfrontoAggiungi_0");
  Child<QWidget>(*window_, "TabellaConfronto").setFocus();
  EXPECT_EQ(TabStops(*window_),
            (QStringList{"TabellaConfronto", "ConfrontoRispetto", "ConfrontoTogli", "qt_tabwidget_tabbar",
                         "Check1", "TreeView1", "Combo1", "List1_cerca", "List1", "ConfrontoAggiungi_0",
                         "Text1", "Command1"}));
}

TEST_F(ComparisonWindowTest, EveryControlHasAName) {
  Activate(Open());
  for (const char* name :
       {"TreeView1", "Combo1", "List1_cerca", "List1", "Text1", "TreeView2", "List2", "List3",
        "TabellaConfronto", "ConfrontoRispetto", "ConfrontoSu", "ConfrontoGiu", "ConfrontoDifferenze"})
    EXPECT_FALSE(Child<QWidget>(*window_, name).accessibleName().isEmpty()) << name;
}

TEST_F(ComparisonWindowTest, RefreshingKeepsTheCurve) {
  Activate(Open());
  Choose("TreeView1", "Murature", "List1", 1);
  Check("Check1").click();
  library_.tests["Murature"].push_back(TestOf("Nuovo 30", 40));
  QTest::keyClick(window_.get(), Qt::Key_F5);
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 4);
  EXPECT_EQ(drawn_.back().laboratory_name, "Pieno 25");
  EXPECT_EQ((*drawn_.back().laboratory)[0], 38.0);
}

TEST_F(ComparisonWindowTest, SizesAreRemembered) {
  const QTemporaryDir folder;
  boxes_.memory = std::make_unique<QSettings>(folder.filePath("finestre.ini"), QSettings::IniFormat);
  Open().resize(1111, 611);
  window_.reset();
  EXPECT_EQ(Open().size(), QSize(1111, 611));
}

TEST_F(ComparisonWindowTest, TheKeywordFiltersTheList) {
  Open();
  OpenLibraryFile(*window_, "TreeView1", "Murature");
  ChooseKeyword(*window_, "Combo1", "pieni");
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 1);
}

presentation::ComparedCurve Curve(const std::string& name, double level, double rating) {
  presentation::ComparedCurve curve{.name = name, .symbol = "Rw", .rating = rating, .term = -1.0};
  curve.levels.fill(level);
  return curve;
}

TEST_F(ComparisonWindowTest, SeveralStructuresStandInTheTableWithTheirRatings) {
  Open();
  window_->Follow({.calculated = Curve("Curva teorica", 45, 49), .variants = {Curve("A", 44, 47)}});
  Keep("TreeView1", "Murature", "List1", 1, "ConfrontoAggiungi_0");
  Keep("TreeView1", "Murature", "List1", 2, "ConfrontoAggiungi_0");
  Keep("TreeView2", "In opera", "List2", 0, "ConfrontoAggiungi_1");
  Child<QListWidget>(*window_, "List3").setCurrentRow(0);
  Child<QPushButton>(*window_, "ConfrontoAggiungi_2").click();
  Check("Check1").click();
  EXPECT_EQ(Lines(), (QStringList{"Curva teorica | 49 | −1 | –", "Blocchi 20 | 48 | −1 | −5",
                                  "Pieno 25 | 53 | −1 | −5", "Blocchi 20 | 48 | −1 | −5",
                                  "Cantiere A | R'w 46 | −1 | −5", "A | 47 | −1 | –"}));
  EXPECT_EQ(AddedNames(), (QStringList{"Pieno 25", "Blocchi 20", "Cantiere A", "A"}));
  EXPECT_EQ(drawn_.back().added[0].values[10], 48.0);
  EXPECT_EQ(drawn_.back().comparison.curves.size(), 6U);
  Picture(*window_, "form8-curve");
}

TEST_F(ComparisonWindowTest, CurvesDifferInColourAndDash) {
  for (std::size_t i = 0; i < presentation::kComparedLooks.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_NE(presentation::kComparedLooks.at(i).colour, presentation::kComparedLooks.at(j).colour);
    EXPECT_NE(presentation::kComparedLooks.at(i).look.dashes, Qt::SolidLine);
  }
  for (std::size_t i = 1; i < presentation::kComparedLooks.size(); ++i)
    EXPECT_NE(presentation::kComparedLooks.at(i).look.dashes,
              presentation::kComparedLooks.at(i - 1).look.dashes);
}

TEST_F(ComparisonWindowTest, ARemovedCurveLeavesTheOthersTheirColour) {
  Activate(Open());
  for (const int row : {0, 1, 2}) Keep("TreeView1", "Murature", "List1", row, "ConfrontoAggiungi_0");
  const QColor last = drawn_.back().added[2].colour;
  SelectCurve(1);
  QTest::keyClick(&Child<QWidget>(*window_, "TabellaConfronto"), Qt::Key_Delete);
  EXPECT_EQ(AddedNames(), (QStringList{"Forato 12", "Blocchi 20"}));
  EXPECT_EQ(drawn_.back().added[1].colour, last);
  Keep("TreeView1", "Murature", "List1", 1, "ConfrontoAggiungi_0");
  EXPECT_NE(drawn_.back().added[2].colour, last) << "the place that became free is taken again";
  EXPECT_NE(drawn_.back().added[2].colour, drawn_.back().added[0].colour);
}

TEST_F(ComparisonWindowTest, CurvesAreMovedByKeysAndButtons) {
  Activate(Open());
  for (const int row : {0, 1, 2}) Keep("TreeView1", "Murature", "List1", row, "ConfrontoAggiungi_0");
  SelectCurve(2);
  auto& table = Child<QTableWidget>(*window_, "TabellaConfronto");
  QTest::keyClick(&table, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(AddedNames(), (QStringList{"Forato 12", "Blocchi 20", "Pieno 25"}));
  EXPECT_EQ(table.currentRow(), 1) << "the moved curve stays selected";
  Child<QAbstractButton>(*window_, "ConfrontoSu").click();
  EXPECT_EQ(AddedNames(), (QStringList{"Blocchi 20", "Forato 12", "Pieno 25"}));
  EXPECT_FALSE(Child<QAbstractButton>(*window_, "ConfrontoSu").isEnabled());
  QTest::keyClick(&table, Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(AddedNames(), (QStringList{"Forato 12", "Blocchi 20", "Pieno 25"}));
}

TEST_F(ComparisonWindowTest, EnterInTheListKeepsTheStructure) {
  Activate(Open());
  Choose("TreeView1", "Murature", "List1", 1);
  auto& list = Child<QListView>(*window_, "List1");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Return);
  ASSERT_FALSE(drawn_.empty());
  EXPECT_EQ(AddedNames(), QStringList{"Pieno 25"});
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(ComparisonWindowTest, TheCurveOfASideIsRemovedByUntickingIt) {
  Open();
  Choose("TreeView1", "Murature", "List1", 1);
  Check("Check1").click();
  SelectCurve(0);
  Child<QAbstractButton>(*window_, "ConfrontoTogli").click();
  EXPECT_FALSE(Check("Check1").isChecked());
  EXPECT_FALSE(drawn_.back().laboratory.has_value());
  EXPECT_TRUE(Lines().isEmpty());
}

TEST_F(ComparisonWindowTest, TheCalculatedCurveStays) {
  Open();
  window_->Follow({.calculated = Curve("Curva teorica", 45, 49)});
  SelectCurve(0);
  EXPECT_FALSE(Child<QAbstractButton>(*window_, "ConfrontoTogli").isEnabled());
  QTest::keyClick(&Child<QWidget>(*window_, "TabellaConfronto"), Qt::Key_Delete);
  EXPECT_EQ(Lines(), QStringList{"Curva teorica | 49 | −1 | –"});
}

TEST_F(ComparisonWindowTest, NoMoreThanSixAreAdded) {
  Open();
  for (int i = 0; i < 8; ++i) Keep("TreeView1", "Murature", "List1", i % 3, "ConfrontoAggiungi_0");
  EXPECT_EQ(Lines().size(), 6);
  const auto& add = Child<QPushButton>(*window_, "ConfrontoAggiungi_0");
  EXPECT_FALSE(add.isEnabled());
  EXPECT_TRUE(add.toolTip().contains("6"));
  SelectCurve(0);
  Child<QAbstractButton>(*window_, "ConfrontoTogli").click();
  EXPECT_TRUE(add.isEnabled());
}

TEST_F(ComparisonWindowTest, DifferencesAreCountedFromTheChosenCurve) {
  Open();
  window_->Follow({.calculated = Curve("Curva teorica", 45, 49)});
  Keep("TreeView1", "Murature", "List1", 1, "ConfrontoAggiungi_0");
  auto& view = dynamic_cast<DifferenceView&>(Child<QWidget>(*window_, "ConfrontoDifferenze"));
  EXPECT_FALSE(view.isVisible());
  CountFrom(1);
  EXPECT_TRUE(view.isVisible());
  EXPECT_EQ(Lines(), (QStringList{"Curva teorica | 49 | −1 | – | –", "Pieno 25 | 53 | −1 | −5 | +4"}));
  ASSERT_EQ(view.Chart().curves.size(), 1U);
  EXPECT_EQ(view.Chart().curves[0].differences_db[0], -7.0);
  EXPECT_EQ(view.Chart().curves[0].differences_db[20], 13.0);
  EXPECT_EQ(drawn_.back().comparison.against, 0U);
  CountFrom(2);
  EXPECT_EQ(view.Chart().curves[0].differences_db[0], 7.0);
  Picture(*window_, "form8-differenze");
  SelectCurve(1);
  Child<QAbstractButton>(*window_, "ConfrontoTogli").click();
  EXPECT_FALSE(view.isVisible()) << "the curve that differences were counted from is gone";
  EXPECT_FALSE(drawn_.back().comparison.against.has_value());
}

TEST_F(ComparisonWindowTest, AVariantFollowsTheProject) {
  Open();
  window_->Follow({.variants = {Curve("A", 44, 47), Curve("B", 40, 43)}});
  for (const int row : {0, 1}) {
    Child<QListWidget>(*window_, "List3").setCurrentRow(row);
    Child<QPushButton>(*window_, "ConfrontoAggiungi_2").click();
  }
  window_->Follow({.variants = {Curve("B", 41, 44)}});
  EXPECT_EQ(Lines(), QStringList{"B | 44 | −1 | –"});
  EXPECT_EQ(window_->Current().added[0].values[0], 41.0);
  EXPECT_EQ(Child<QListWidget>(*window_, "List3").count(), 1);
}

TEST_F(ComparisonWindowTest, AStructureWithoutBandsCannotBeKept) {
  library_.tests["Murature"][0].part.bands_db = {};
  Open();
  Choose("TreeView1", "Murature", "List1", 0);
  EXPECT_FALSE(Child<QPushButton>(*window_, "ConfrontoAggiungi_0").isEnabled());
}

TEST_F(ComparisonWindowTest, ClosedItKeepsNoCurve) {
  Open();
  Keep("TreeView1", "Murature", "List1", 1, "ConfrontoAggiungi_0");
  QTest::keyClick(window_.get(), Qt::Key_Escape);
  window_->show();
  EXPECT_TRUE(Lines().isEmpty());
  EXPECT_TRUE(window_->Current().added.empty());
}

}  // namespace
}  // namespace velmar::structures
