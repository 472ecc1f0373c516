#include "calculation/open/open_calculation.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

const AskToGoOn kYes = [](const Message&) { return true; };

elements::Setup Facade() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kCompositeElement;
  setup.facade.simplified = true;
  setup.base.area_text = "10";
  setup.base.rating_text = "50";
  setup.facade.components[0].area_text = "2";
  setup.facade.components[0].rating_text = "30";
  return setup;
}

class OpenCalculationTest : public testing::Test {
 protected:
  OpenCalculationTest() {
    open_.Replace(Facade());
    open_.OnChange([this] { ++told_; });
  }

  OpenCalculation open_;
  int told_ = 0;
};

TEST_F(OpenCalculationTest, IsSavedUntilItChanges) {
  EXPECT_TRUE(open_.IsSaved());
  EXPECT_FALSE(open_.IsTouched());
  open_.Edit([](elements::Setup& setup) { setup.width_text = "3"; });
  EXPECT_FALSE(open_.IsSaved());
  EXPECT_TRUE(open_.IsTouched());
  open_.MarkSaved();
  EXPECT_TRUE(open_.IsSaved());
  EXPECT_EQ(told_, 2);
}

TEST_F(OpenCalculationTest, HoldsAResultOnlyWhileItBelongsToTheSetup) {
  EXPECT_EQ(open_.Run(kYes).status, RunStatus::kDone);
  EXPECT_TRUE(open_.Result());
  EXPECT_FALSE(open_.IsTouched());
  EXPECT_TRUE(open_.IsSaved());
  open_.EditKeepingResult([](elements::Setup& setup) { setup.information[0].value = "Via Roma 1"; });
  EXPECT_TRUE(open_.Result());
  open_.Edit([](elements::Setup& setup) { setup.facade.components[0].tightness_class = 1; });
  EXPECT_FALSE(open_.Result());
}

TEST_F(OpenCalculationTest, TakesAResultThatBelongsToItsSetup) {
  const elements::Setup before = open_.Setup();
  const auto result = RunCalculation(before, 0.0, kYes).result;
  ASSERT_TRUE(result);
  open_.Edit([](elements::Setup& setup) { setup.facade.components[0].rating_text = "35"; });
  EXPECT_FALSE(open_.TakeResult(before, *result));
  EXPECT_FALSE(open_.Result());
  open_.Undo();
  const int told = told_;
  EXPECT_TRUE(open_.TakeResult(before, *result));
  EXPECT_EQ(open_.Result(), result);
  EXPECT_EQ(told_, told + 1);
  EXPECT_TRUE(open_.IsTouched()) << "leaving a field still corrects what was typed";
  EXPECT_FALSE(open_.TakeResult(before, {})) << "a result that stands is not replaced";
}

TEST_F(OpenCalculationTest, PreparesTheSetupAsARunDoes) {
  open_.Replace([] {
    elements::Setup wall;
    wall.calculation = elements::Calculation::kDoubleWallGeneric;
    wall.cavity.depth_text = "";
    return wall;
  }());
  open_.Prepare();
  EXPECT_EQ(open_.Setup().cavity.depth_text, "10");
  EXPECT_FALSE(open_.IsSaved());
  open_.MarkSaved();
  const int told = told_;
  open_.Prepare();
  EXPECT_EQ(told_, told) << "a prepared set-up is left alone";
  EXPECT_TRUE(open_.IsSaved());
}

TEST_F(OpenCalculationTest, AChangeThatThrowsLeavesEverythingAsItWas) {
  ASSERT_EQ(open_.Run(kYes).status, RunStatus::kDone);
  const elements::Setup setup = open_.Setup();
  const auto result = open_.Result();
  const Totals totals = open_.CurrentTotals();
  const int told = told_;
  const auto change = [](elements::Setup& changed) {
    changed.base.area_text = "12";
    changed.calculation = elements::Calculation::kSingleWallGeneric;
    throw std::runtime_error("halfway");
  };
  EXPECT_THROW(open_.Edit(change), std::runtime_error);
  EXPECT_THROW(open_.EditKeepingResult(change), std::runtime_error);
  EXPECT_EQ(open_.Setup(), setup);
  EXPECT_EQ(open_.Result(), result);
  EXPECT_EQ(open_.CurrentTotals(), totals);
  EXPECT_TRUE(open_.IsSaved());
  EXPECT_FALSE(open_.IsTouched());
  EXPECT_EQ(told_, told);
}

TEST_F(OpenCalculationTest, LeavesNoResultWhenARunIsRefused) {
  open_.Run(kYes);
  open_.Edit([](elements::Setup& setup) { setup.base.area_text = "2"; });
  const RunOutcome outcome = open_.Run(kYes);
  EXPECT_EQ(outcome.status, RunStatus::kRefused);
  EXPECT_FALSE(open_.Result());
  ASSERT_EQ(outcome.messages.size(), 1U);
  EXPECT_EQ(LeadingRow(outcome.messages[0].at(0)).number, 256);
}

TEST_F(OpenCalculationTest, NamesTheTextThatIsNoNumber) {
  open_.Edit([](elements::Setup& setup) { setup.base.rating_text = "cinquanta"; });
  const RunOutcome outcome = open_.Run(kYes);
  EXPECT_EQ(outcome.status, RunStatus::kFailed);
  ASSERT_EQ(outcome.messages.size(), 1U);
  EXPECT_EQ(std::get<std::string>(outcome.messages[0].at(1).at(1)), " \"cinquanta\"");
  ASSERT_TRUE(outcome.refusal);
  EXPECT_EQ(outcome.refusal->field, (elements::FieldId{elements::Field::kRating}));
}

TEST(OpenCalculation, RefusesToRunNothing) {
  OpenCalculation open;
  EXPECT_EQ(open.Run(kYes).status, RunStatus::kRefused);
}

}  // namespace
}  // namespace velmar::calculation
