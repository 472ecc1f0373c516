#include "shell/structures/comparison_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "presentation/drawing/chart_scale.h"
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

TEST_F(ComparisonWindowTest, AnInvalidResultClosesItAndTheChartStaysAsItWas) {
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
  EXPECT_EQ(TabStops(*window_),
            (QStringList{"Check1", "TreeView1", "Combo1", "List1_cerca", "List1", "Text1", "Check2",
                         "TreeView2", "Combo2", "List2_cerca", "List2", "Text2", "Command1"}));
}

TEST_F(ComparisonWindowTest, EveryControlHasAName) {
  Activate(Open());
  for (const char* name : {"TreeView1", "Combo1", "List1_cerca", "List1", "Text1", "TreeView2", "List2"})
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
  Child<QComboBox>(*window_, "Combo1").setCurrentText("pieni");
  EXPECT_EQ(Child<QListView>(*window_, "List1").model()->rowCount(), 1);
}

}  // namespace
}  // namespace velmar::structures
