#include "foundation/rounding.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace velmar {
namespace {

struct Case {
  const char* name;
  double value;
  int decimals;
  double rounded;
};

class RoundToEvenTest : public testing::TestWithParam<Case> {};

TEST_P(RoundToEvenTest, GivesTheNearestAndTheEvenOfTwo) {
  EXPECT_EQ(RoundToEven(GetParam().value, GetParam().decimals), GetParam().rounded);
}

INSTANTIATE_TEST_SUITE_P(
    Values, RoundToEvenTest,
    testing::Values(Case{"TieDown", 2.5, 0, 2.0}, Case{"TieUp", 3.5, 0, 4.0},
                    Case{"NegativeTie", -1.5, 0, -2.0}, Case{"NegativeTieEven", -2.5, 0, -2.0},
                    Case{"OneDecimalTieDown", 0.25, 1, 0.2}, Case{"OneDecimalTieUp", 0.75, 1, 0.8},
                    Case{"FoundByScaling", 0.35, 1, 0.4}, Case{"FourDecimals", 10.00005, 4, 10.0},
                    Case{"NoTie", 2.4999, 0, 2.0}, Case{"Huge", 1e300, 4, 1e300}),
    [](const auto& test) { return test.param.name; });

TEST(RoundToEven, NeverGivesNegativeZero) {
  EXPECT_FALSE(std::signbit(RoundToEven(-0.3)));
  EXPECT_FALSE(std::signbit(RoundToEven(-0.04, 1)));
}

TEST(IsWithin, HoldsItsEndsUpToRounding) {
  constexpr double kNoEnd = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(IsWithin(80.0, 80.0, 400.0));
  EXPECT_TRUE(IsWithin(1600.0000000000002, 750.0, 1600.0));
  EXPECT_FALSE(IsWithin(1600.0001, 750.0, 1600.0));
  EXPECT_TRUE(IsWithin(749.9999999999999, 750.0, 1600.0));
  EXPECT_FALSE(IsWithin(749.9999, 750.0, 1600.0));
  EXPECT_TRUE(IsWithin(-1e300, -kNoEnd, 60.0));
  EXPECT_FALSE(IsWithin(61.0, -kNoEnd, 60.0));
  EXPECT_FALSE(IsWithin(std::nan(""), -kNoEnd, kNoEnd));
}

}  // namespace
}  // namespace velmar
