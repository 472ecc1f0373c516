#include "models/walls/bridged_limit.h"

#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

using acoustics::Spectrum;

Spectrum Flat(double level) {
  Spectrum spectrum{};
  spectrum.fill(level);
  return spectrum;
}

TEST(LimitByBridges, GoesThroughTheBridgedValueAtThePeakAndKeepsItsShapeAbove) {
  Spectrum wall = Flat(60);
  wall[15] = 70;
  wall[16] = 65;
  wall[20] = 72;
  const Spectrum limited = LimitByBridges(wall, Flat(62), 15);
  EXPECT_EQ(limited[15], 62);
  EXPECT_EQ(limited[16], 57);
  EXPECT_EQ(limited[20], 64);
  EXPECT_EQ(limited[10], 60);
}

TEST(LimitByBridges, WithoutAPeakMovesEveryBandFromTheFirst) {
  Spectrum wall = Flat(60);
  wall[5] = 10;
  const Spectrum limited = LimitByBridges(wall, Flat(55), 0);
  for (std::size_t band = 0; band < 21; ++band) EXPECT_EQ(limited[band], wall[band] - 5);
}

TEST(LimitByBridges, LowersWhatIsBetterThanItsBridges) {
  Spectrum wall = Flat(30);
  for (std::size_t band = 6; band < 21; ++band) wall[band] = 60;
  const Spectrum limited = LimitByBridges(wall, Flat(50), 18);
  EXPECT_EQ(limited[4], 30);
  EXPECT_EQ(limited[5], 40);  // the band before the first lowered one: mean of 30 and 50
  for (std::size_t band = 6; band < 21; ++band) EXPECT_EQ(limited[band], 50);
}

TEST(LimitByBridges, SmoothsNothingWhenTheFirstOrSecondBandIsLowered) {
  for (const std::size_t first : {0u, 1u}) {
    Spectrum wall = Flat(60);
    if (first == 1) wall[0] = 10;
    const Spectrum limited = LimitByBridges(wall, Flat(50), 18);
    EXPECT_EQ(limited[0], first == 1 ? 10 : 50);
    EXPECT_EQ(limited[1], 50);
  }
}

TEST(LimitByBridges, LiftsTheBandBeforeOnceWhereTheLimitEnds) {
  Spectrum wall = Flat(60);
  wall[6] = 40;  // better bridged than unbridged here: the limit ends
  wall[9] = 40;  // and here again, without a second lift
  Spectrum bridged = Flat(50);
  bridged[4] = 47;
  const Spectrum limited = LimitByBridges(wall, bridged, 18);
  EXPECT_EQ(limited[5], 48);  // one above the bridged value two bands below
  EXPECT_EQ(limited[6], 40);
  EXPECT_EQ(limited[8], 50);
}

TEST(LimitByBridges, LiftsNothingBeforeItHasLowered) {
  const Spectrum limited = LimitByBridges(Flat(40), Flat(50), 18);
  for (std::size_t band = 0; band < 18; ++band) EXPECT_EQ(limited[band], 40);
}

TEST(LimitByBridges, LiftsAnEqualValueToo) {
  Spectrum wall = Flat(60);
  wall[6] = 50;  // equal to its bridges: not lowered, so the limit ends
  EXPECT_EQ(LimitByBridges(wall, Flat(50), 18)[5], 51);
}

const BridgedWall kWall{LightWallForm::kLineLine, 10, 20, 3000, 1500, 0.6, 3};

struct FormCase {
  const char* name;
  LightWallForm form;
  double value_db;  ///< at 500 Hz
};

class BridgedFormTest : public testing::TestWithParam<FormCase> {};

TEST_P(BridgedFormTest, AtFiveHundredHertz) {
  BridgedWall wall = kWall;
  wall.form = GetParam().form;
  EXPECT_NEAR(BridgedValues(wall)[10], GetParam().value_db, 1e-9);
}

// m1 = 10, m2 = 20 kg/m², fc 3000 and 1500 Hz, b = 0.6 m, 3 m: M = 20 lg(30 * 500) - 48 = 35.5218252,
// lg(0.6 * 3000) = 3.2552725; the first leaf holds the highest fc, so X = m2 = 20.
// P1 = sqrt(500/3000) 350.9 * 10 * 6 = 8595.2596, P2 = sqrt(500/1500) 350.9 * 20 * 6 = 24311.065
// A1 = 350.9² (4/3.1416) 10/3000 = 522.58217, A2 = 350.9² (4/3.1416) 20/1500 = 2090.32866
INSTANTIATE_TEST_SUITE_P(Forms, BridgedFormTest,
                         testing::Values(FormCase{"LineLine", LightWallForm::kLineLine, 58.213132742702},
                                         FormCase{"LinePoint", LightWallForm::kLinePoint, 53.996238878891},
                                         FormCase{"PointPoint", LightWallForm::kPointPoint, 66.084850188786}),
                         [](const auto& test) { return test.param.name; });

TEST(BridgedValues, TakeTheMassOfTheLeafWithoutTheHighestCriticalFrequency) {
  BridgedWall wall = kWall;
  wall.leaf2_critical_hz = 3000;  // of equals the second leaf holds the highest: X = m1 = 10
  BridgedWall first = wall;
  first.leaf2_critical_hz = std::nextafter(3000.0, 0.0);  // X = m2 = 20
  EXPECT_NEAR(BridgedValues(first)[10] - BridgedValues(wall)[10], 20 * std::log10(2.0), 1e-6);
}

TEST(BridgedValues, NeedADistanceAndADimension) {
  const auto cause = [](const BridgedWall& wall) {
    try {
      BridgedValues(wall);
    } catch (const ArithmeticFailure& failure) {
      return failure.UserMessage().back();
    }
    return MessageLine{};
  };
  BridgedWall wall = kWall;
  wall.stud_distance_m = 0;
  EXPECT_EQ(cause(wall), MessageLine{kZeroStudDistanceRow});
  wall = kWall;
  wall.dim_b_m = 0;
  EXPECT_EQ(cause(wall), MessageLine{kZeroDimensionRow});
  wall = kWall;
  wall.form = LightWallForm::kIsolated;
  EXPECT_THROW(BridgedValues(wall), std::invalid_argument);
}

}  // namespace
}  // namespace velmar::models
