#include "models/walls/light_double_wall.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/walls/bridged_limit.h"
#include "models/walls/light_leaf.h"

namespace velmar::models {
namespace {

const PlateLayer kBoard{1, 12.5, 800, 2.4, 0.02, 0.2};  // 10 kg/m², fc = 3072 Hz
const PlateLayer kThick{1, 25, 800, 2.4, 0.02, 0.2};    // 20 kg/m², fc = 1536 Hz

LightDoubleWallInput Wall(LightWallForm form = LightWallForm::kIsolated,
                          CavityKind kind = CavityKind::kFibrous) {
  LightDoubleWallInput input;
  input.leaf1.rows[0] = kThick;
  input.leaf1.count = 1;
  input.leaf2.rows[0] = kThick;
  input.leaf2.count = 1;
  input.depth_m = 0.1;
  input.stud_distance_m = 0.6;
  input.dim_b_m = 3;
  input.cavity_kind = kind;
  input.form = form;
  return input;
}

// m1 = m2 = 20 kg/m²: me = 20, F0 = 113 / sqrt(20 * 0.1) = 79.9031 Hz, Fd = 55 / 0.1 = 550 Hz.
//  63 Hz: mass law of both, 20 lg(40 * 63) - 48 = 20.0280
//  80 Hz: each leaf 20 lg(80 * 20) - 48 = 16.0824; 2 * 16.0824 + 20 lg(80 * 0.1) - 29 = 21.2266
TEST(LightDoubleWall, FollowsItsThreeRegions) {
  const LightDoubleWallResult wall = CalculateLightDoubleWall(Wall());
  EXPECT_NEAR(wall.resonance_hz, 113 / std::sqrt(2.0), 1e-10);
  EXPECT_NEAR(wall.depth_resonance_hz, 550, 1e-10);
  EXPECT_NEAR(wall.spectrum[1], 20 * std::log10(40 * 63.0) - 48, 1e-10);
  EXPECT_NEAR(wall.spectrum[2], 2 * (20 * std::log10(1600.0) - 48) + 20 * std::log10(8.0) - 29, 1e-10);
  const LightLeaf leaf = FindLightLeaf(Wall().leaf1, 0.02, wall.resonance_hz, CavityKind::kFibrous);
  EXPECT_NEAR(wall.spectrum[11], 2 * leaf.bands[11] + 6, 1e-10);
}

TEST(LightDoubleWall, LowersItsResonancesWithItsDepth) {
  LightDoubleWallInput deep = Wall();
  deep.depth_m = 0.2;
  EXPECT_LT(CalculateLightDoubleWall(deep).resonance_hz, CalculateLightDoubleWall(Wall()).resonance_hz);
  EXPECT_LT(CalculateLightDoubleWall(deep).depth_resonance_hz,
            CalculateLightDoubleWall(Wall()).depth_resonance_hz);
}

TEST(LightDoubleWall, TakesTheMassLineAtExactlyItsResonance) {
  LightDoubleWallInput input = Wall();
  input.depth_m = 0.0997578125;  // me d = 20 * 0.0997578125 = 1.4125²: F0 = 113 / 1.4125 = 80 Hz
  const LightDoubleWallResult wall = CalculateLightDoubleWall(input);
  ASSERT_EQ(wall.resonance_hz, 80.0);
  EXPECT_NEAR(wall.spectrum[2], 20 * std::log10(40.0 * 80) - 48, 1e-10);
}

TEST(LightDoubleWall, TakesTheSixDecibelsAtExactlyTheResonanceOfItsDepth) {
  LightDoubleWallInput input = Wall();
  input.depth_m = 0.11;
  const LightDoubleWallResult wall = CalculateLightDoubleWall(input);
  ASSERT_EQ(wall.depth_resonance_hz, 500.0);
  const LightLeaf leaf = FindLightLeaf(input.leaf1, 0.02, wall.resonance_hz, CavityKind::kFibrous);
  EXPECT_NEAR(wall.spectrum[10], 2 * leaf.bands[10] + 6, 1e-10);
}

TEST(LightDoubleWall, LosesFourDecibelsAboveItsResonanceWhenEmpty) {
  const auto filled = CalculateLightDoubleWall(Wall()).spectrum;
  const auto empty = CalculateLightDoubleWall(Wall(LightWallForm::kIsolated, CavityKind::kEmpty)).spectrum;
  const auto layers =
      CalculateLightDoubleWall(Wall(LightWallForm::kIsolated, CavityKind::kGenericMaterial)).spectrum;
  for (std::size_t band = 0; band < 2; ++band) EXPECT_EQ(empty[band], filled[band]);
  for (std::size_t band = 2; band < 21; ++band) EXPECT_NEAR(empty[band], filled[band] - 4, 1e-10);
  EXPECT_EQ(layers, filled);
}

TEST(LightDoubleWall, TakesTheFirstLeafsMassWithTheSecondLeafsThickness) {
  LightDoubleWallInput input = Wall();
  input.leaf1.rows[0] = kBoard;
  input.leaf2.rows[0].density_kg_m3 = 600;
  const LightDoubleWallResult wall = CalculateLightDoubleWall(input);
  EXPECT_DOUBLE_EQ(wall.leaf1_mass_kg_m2, 20);  // 800 kg/m³ on 25 mm, not on its own 12.5 mm
  EXPECT_DOUBLE_EQ(wall.leaf2_mass_kg_m2, 15);
}

TEST(LightDoubleWall, DrawsMissingThicknessesFromTheSecondLeafsRowsAsTheyStand) {
  LightDoubleWallInput input = Wall();
  input.leaf1.rows[1] = kBoard;
  input.leaf1.count = 2;
  EXPECT_DOUBLE_EQ(CalculateLightDoubleWall(input).leaf1_mass_kg_m2, 20);  // never chosen: no thickness
  input.leaf2.rows[1].thickness_mm = 15;  // chosen before, count reduced since
  EXPECT_DOUBLE_EQ(CalculateLightDoubleWall(input).leaf1_mass_kg_m2, 20 + 800 * 0.015);
  EXPECT_DOUBLE_EQ(CalculateLightDoubleWall(input).leaf2_mass_kg_m2, 20);
}

TEST(LightDoubleWall, SumsTheLossesOfTheFirstLeafForBothLeaves) {
  LightDoubleWallInput input = Wall();
  input.leaf1.rows[0].loss_factor = 0.03;
  input.leaf1.rows[1].loss_factor = 0.01;  // beyond the first leaf's count, read by the second leaf
  input.leaf2.rows[0].loss_factor = 0.9;   // never read
  input.leaf2.rows[0].multiplicity = 2;
  input.leaf2.rows[1] = kBoard;
  input.leaf2.count = 2;
  const LightDoubleWallResult wall = CalculateLightDoubleWall(input);
  const LightLeaf leaf1 = FindLightLeaf(input.leaf1, 0.03, wall.resonance_hz, input.cavity_kind);
  const LightLeaf leaf2 = FindLightLeaf(input.leaf2, 2 * 0.03 + 0.01, wall.resonance_hz, input.cavity_kind);
  EXPECT_NEAR(wall.spectrum[20], leaf1.bands[20] + leaf2.bands[20] + 6, 1e-10);
  input.leaf2.rows[0].loss_factor = 0.0;
  EXPECT_EQ(CalculateLightDoubleWall(input).spectrum, wall.spectrum);
}

TEST(LightDoubleWall, MeetsItsBridgesAtTheHighestBandBelowTheCriticalFrequency) {
  const auto isolated = CalculateLightDoubleWall(Wall()).spectrum;
  const double fc = FindLightLeaf(Wall().leaf1, 0.02, 80, CavityKind::kFibrous).highest_critical_frequency_hz;
  ASSERT_NEAR(fc, 1536, 1);  // bands up to 1250 Hz take part
  const auto peak =
      static_cast<std::size_t>(std::max_element(isolated.begin(), isolated.begin() + 15) - isolated.begin());
  for (const LightWallForm form :
       {LightWallForm::kLineLine, LightWallForm::kLinePoint, LightWallForm::kPointPoint}) {
    const auto limited = CalculateLightDoubleWall(Wall(form)).spectrum;
    const auto bridged = BridgedValues({form, 20, 20, fc, fc, 0.6, 3});
    EXPECT_NEAR(limited[peak], bridged[peak], 1e-10);
    for (std::size_t band = peak; band < 21; ++band) {
      EXPECT_NEAR(limited[band] - limited[peak], isolated[band] - isolated[peak], 1e-10);
    }
  }
}

TEST(LightDoubleWall, WithoutABandBelowTheCriticalFrequencyMeetsItsBridgesAtTheFirst) {
  LightDoubleWallInput input = Wall();
  for (LeafRows* leaf : {&input.leaf1, &input.leaf2})
    leaf->rows[0] = {1, 20, 100, 1000, 0.02, 0};  // fc = 34 Hz
  const auto isolated = CalculateLightDoubleWall(input).spectrum;
  input.form = LightWallForm::kPointPoint;
  const auto limited = CalculateLightDoubleWall(input).spectrum;
  for (std::size_t band = 1; band < 21; ++band) {
    EXPECT_NEAR(limited[band] - isolated[band], limited[0] - isolated[0], 1e-10);
  }
  EXPECT_NE(limited[0], isolated[0]);
}

TEST(LightDoubleWall, UnconnectedReadsNeitherStudsNorDimension) {
  for (const LightWallForm form : {LightWallForm::kIsolated, LightWallForm::kInsulatingUnit}) {
    LightDoubleWallInput input = Wall(form);
    input.stud_distance_m = 0;
    input.dim_b_m = 0;
    EXPECT_EQ(CalculateLightDoubleWall(input).spectrum, CalculateLightDoubleWall(Wall()).spectrum);
  }
}

struct RefusedWall {
  const char* name;
  void (*spoil)(LightDoubleWallInput&);
  MessageRow cause;
};

class RefusedLightWallTest : public testing::TestWithParam<RefusedWall> {};

TEST_P(RefusedLightWallTest, NamesItsCause) {
  LightDoubleWallInput input = Wall(LightWallForm::kLinePoint);
  GetParam().spoil(input);
  try {
    CalculateLightDoubleWall(input);
    FAIL() << "no failure";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage().back(), MessageLine{GetParam().cause}) << failure.what();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Walls, RefusedLightWallTest,
    testing::Values(
        RefusedWall{"NoDepth", [](LightDoubleWallInput& in) { in.depth_m = 0; }, kZeroCavityDepthRow},
        RefusedWall{"NoFirstLeaf", [](LightDoubleWallInput& in) { in.leaf1.count = 0; }, kZeroMassRow},
        RefusedWall{"NoSecondLeaf", [](LightDoubleWallInput& in) { in.leaf2.count = 0; }, kZeroMassRow},
        RefusedWall{"NoDensity", [](LightDoubleWallInput& in) { in.leaf2.rows[0].density_kg_m3 = 0; },
                    kZeroMassRow},
        RefusedWall{"NoOwnThickness", [](LightDoubleWallInput& in) { in.leaf1.rows[0].thickness_mm = 0; },
                    kZeroThicknessRow},
        RefusedWall{"NoModulus", [](LightDoubleWallInput& in) { in.leaf1.rows[0].youngs_modulus_gpa = 0; },
                    kInvalidStiffnessRow},
        RefusedWall{"NoLosses", [](LightDoubleWallInput& in) { in.leaf1.rows[0].loss_factor = 0; },
                    kZeroLossFactorRow},
        RefusedWall{"NoStudDistance", [](LightDoubleWallInput& in) { in.stud_distance_m = 0; },
                    kZeroStudDistanceRow},
        RefusedWall{"NoDimension", [](LightDoubleWallInput& in) { in.dim_b_m = 0; }, kZeroDimensionRow}),
    [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::models
