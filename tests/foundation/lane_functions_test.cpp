#include "foundation/lane_functions.h"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace velmar {
namespace {

constexpr double kUnit = std::numeric_limits<double>::epsilon();

TEST(LaneFunctions, KnowTheExponential) {
  for (double x = -700.0; x <= 700.0; x += 0.37) EXPECT_NEAR(LaneExp(x) / std::exp(x), 1.0, 1e-14) << x;
  EXPECT_EQ(LaneExp(0.0), 1.0);
}

TEST(LaneFunctions, KnowSineAndCosine) {
  for (double x = 0.0; x < 2000.0; x += 0.0713) {
    EXPECT_NEAR(LaneSineCosine(x).sine, std::sin(x), 1e-14) << x;
    EXPECT_NEAR(LaneSineCosine(x).cosine, std::cos(x), 1e-14) << x;
  }
}

TEST(LaneFunctions, KnowTheLogarithm) {
  EXPECT_EQ(LaneLog(1.0), 0.0);
  EXPECT_EQ(LaneLog(2.0), 0.69314718055994530942);
  EXPECT_NEAR(LaneLog(10.0), 2.30258509299404568402, 2.0 * kUnit);
  EXPECT_NEAR(LaneLog(std::numeric_limits<double>::min()), -708.396418532264106224, 708 * kUnit);
  EXPECT_NEAR(LaneLog(std::numeric_limits<double>::max()), 709.782712893383996843, 709 * kUnit);
}

TEST(LaneFunctions, KnowTheLogarithmOfAnyNumber) {
  std::mt19937_64 engine(20261122);
  for (int n = 0; n < 200000; ++n) {
    // Every exponent and every fraction, and half of them close to 1, where the logarithm vanishes.
    const double any = std::bit_cast<double>(std::uniform_int_distribution<std::uint64_t>(
        std::uint64_t{1} << 52, (std::uint64_t{0x7ff} << 52) - 1)(engine));
    const double near_one = 1.0 + std::ldexp(static_cast<double>(engine()) - 0x1p63, -64 - n % 50);
    const double x = n % 2 == 0 ? any : near_one;
    const double expected = std::log(x);
    ASSERT_NEAR(LaneLog(x), expected, 3.0 * kUnit * std::abs(expected)) << std::hexfloat << x;
  }
}

}  // namespace
}  // namespace velmar
