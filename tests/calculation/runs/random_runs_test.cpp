#include <cmath>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "tests/support/random_setup.h"

namespace velmar::calculation {
namespace {

/// Every calculation, by its place in the catalogue.
class RandomRunsTest : public testing::TestWithParam<int> {
 protected:
  elements::Calculation Calculation() const { return static_cast<elements::Calculation>(GetParam()); }
  /// An integral that refines itself takes longer than a sum over plates.
  int Runs() const {
    constexpr int kSlower = 20;
    return RowOf(Calculation()).model == elements::Model::kLayered ? RANDOM_RUNS / kSlower : RANDOM_RUNS;
  }
};

void ExpectSound(const RunOutcome& outcome) {
  EXPECT_EQ(outcome.status == RunStatus::kDone, outcome.result.has_value());
  if (outcome.status != RunStatus::kDone) {
    EXPECT_FALSE(outcome.messages.empty());
    return;
  }
  if (outcome.result->spectrum) {
    for (const double level : *outcome.result->spectrum) ASSERT_TRUE(std::isfinite(level));
  }
  ASSERT_TRUE(outcome.result->rw || outcome.result->lnw);
  const double rating = outcome.result->rw ? *outcome.result->rw : *outcome.result->lnw;
  EXPECT_TRUE(std::isfinite(rating));
}

TEST_P(RandomRunsTest, OfAnySetUpEndWithAResultOrAMessage) {
  tests::RandomSource random(static_cast<std::uint64_t>(GetParam()) + 17);
  for (int i = 0; i < Runs(); ++i) {
    elements::Setup setup = tests::RandomSetup(Calculation(), tests::Wildness::kNasty, random);
    PrepareRun(setup);
    const bool answer = i % 2 == 0;
    const RunOutcome outcome = RunCalculation(setup, 0.01, [&](const Message&) { return answer; });
    ExpectSound(outcome);
    if (answer) {
      EXPECT_NE(outcome.status, RunStatus::kDeclined);
    }
  }
}

TEST_P(RandomRunsTest, OfARealConstructionComeToAResult) {
  tests::RandomSource random(static_cast<std::uint64_t>(GetParam()) + 99);
  int done = 0;
  const int kRuns = Runs() / 10;
  for (int i = 0; i < kRuns; ++i) {
    elements::Setup setup = tests::RandomSetup(Calculation(), tests::Wildness::kPlausible, random);
    PrepareRun(setup);
    const RunOutcome outcome = RunCalculation(setup, 0.0, [](const Message&) { return true; });
    ExpectSound(outcome);
    done += outcome.status == RunStatus::kDone ? 1 : 0;
  }
  EXPECT_EQ(done, kRuns);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, RandomRunsTest,
                         testing::Range(0, static_cast<int>(elements::kCalculationCount)));

}  // namespace
}  // namespace velmar::calculation
