#include "models/sea/power_ratio.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

TEST(PowerRatio, OfALevelIsATenthOfItAsPowerOfTen) {
  HzSpectrum levels{};
  levels[1] = 10.0;
  levels[2] = -30.0;
  levels[3] = 4.8;
  levels[kHighestHz] = 150.0;
  const HzSpectrum ratios = PowerRatiosOf(levels);
  EXPECT_NEAR(ratios[1], 10.0, 1e-13);
  EXPECT_NEAR(ratios[2], 1e-3, 1e-17);
  EXPECT_NEAR(ratios[3], 3.0199517204020161, 1e-14);
  EXPECT_EQ(ratios[4], 1.0);
  EXPECT_NEAR(ratios[kHighestHz], 1e15, 10.0);
  EXPECT_NEAR(LevelsOf(ratios)[2], -30.0, 1e-13);
}

TEST(PowerRatio, OfAnAbsurdLevelIsNothingOrEndless) {
  HzSpectrum levels{};
  levels[1] = 4000.0;
  levels[2] = -4000.0;
  levels[3] = 20.0;
  const HzSpectrum ratios = PowerRatiosOf(levels);
  EXPECT_EQ(ratios[1], std::numeric_limits<double>::infinity());
  EXPECT_EQ(ratios[2], 0.0);
  EXPECT_NEAR(ratios[3], 100.0, 1e-12);
  EXPECT_THROW(LevelsOf(ratios), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
