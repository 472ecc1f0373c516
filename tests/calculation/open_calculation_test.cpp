#include "calculation/open_calculation.h"

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
