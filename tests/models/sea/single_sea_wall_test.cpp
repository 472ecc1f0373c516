#include "models/sea/single_sea_wall.h"

#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/sea/band_average.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/power_ratio.h"
#include "tests/models/sea/constructions.h"

namespace velmar::models {
namespace {

/// One layer as a leaf of its own, dB.
HzSpectrum LeafOf(const SeaLayer& layer) {
  const SeaPlate plate = SeaPlateRadiation(PlateOf(layer, kWallSize, kSingleWallRadiationCap));
  return SeaLeafTransmission(plate.radiation_efficiency,
                             {plate.longitudinal_speed_m_s, plate.surface_mass_kg_m2,
                              layer.thickness_mm / 1000.0, DampedLossFactor(layer)});
}

SeaWallOutcome Wall(SeaSide layers) {
  return CalculateSingleSeaWall({.size = kWallSize, .total_thickness_mm = 200.0, .layers = layers});
}

void ExpectBands(const SeaWallOutcome& wall, const HzSpectrum& level_db, double shift_db = 0.0) {
  const auto expected = MeanOfBands(level_db);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(wall.reduction_index_db[i], expected[i] + shift_db, 1e-9) << "band " << i;
  }
}

TEST(SingleSeaWall, OfOneLayerInTheFirstSlotIsThatLeaf) {
  ExpectBands(Wall({Brick(), {}, {}}), LeafOf(Brick()));
}

TEST(SingleSeaWall, OfOneLayerInALaterSlotIsDoubled) {
  ExpectBands(Wall({std::nullopt, Brick(), {}}), LeafOf(Brick()), 10.0 * std::log10(2.0));
  ExpectBands(Wall({std::nullopt, {}, Brick()}), LeafOf(Brick()), 10.0 * std::log10(2.0));
}

TEST(SingleSeaWall, DoublesTheSumWithEachFurtherLayer) {
  const HzSpectrum brick = PowerRatiosOf(LeafOf(Brick()));
  const HzSpectrum board = PowerRatiosOf(LeafOf(Plasterboard()));
  HzSpectrum two{};
  HzSpectrum three{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    two[f] = 2.0 * (board[f] + brick[f]);
    three[f] = 2.0 * (board[f] + two[f]);
  }
  ExpectBands(Wall({Brick(), Plasterboard(), {}}), LevelsOf(two));
  ExpectBands(Wall({Brick(), Plasterboard(), Plasterboard()}), LevelsOf(three));
}

struct Modulus {
  double gpa = 0.0;
  double pa = 0.0;
};
class ReducedModulusTest : public testing::TestWithParam<Modulus> {};

TEST_P(ReducedModulusTest, TakesTwoGigapascalOffWhereTwoRemain) {
  EXPECT_DOUBLE_EQ(ReducedModulus(GetParam().gpa), GetParam().pa);
  SeaLayer layer = Brick();
  layer.youngs_modulus_gpa = GetParam().gpa;
  const double stiffness = GetParam().pa * std::pow(0.12, 3) / 12.0;
  EXPECT_NEAR(Wall({layer, {}, {}}).critical_frequency_hz,
              350.9 * 350.9 / 6.2832 * std::sqrt(96.0 / stiffness), 1e-8);
}
INSTANTIATE_TEST_SUITE_P(Moduli, ReducedModulusTest,
                         testing::Values(Modulus{4.0, 2e9}, Modulus{3.9, 3.9e9}, Modulus{30.0, 28e9},
                                         Modulus{1.0, 1e9}));

TEST(SingleSeaWall, KeepsTheWholeModulusOfADampingSheet) {
  SeaLayer layer = Plasterboard();
  layer.damping[0] = {.thickness_mm = 4, .density_kg_m3 = 1500, .youngs_modulus_gpa = 10};
  EXPECT_DOUBLE_EQ(PlateOf(layer, kWallSize, 1.0).sheets[1].youngs_modulus_pa, 10e9);
}

TEST(SingleSeaWall, ReportsTheHighestCriticalFrequencyTheMassAndTheLosses) {
  SeaLayer damped = Brick();
  damped.damping[1] = BitumenSheet();
  const SeaWallOutcome wall = Wall({damped, Plasterboard(), {}});
  EXPECT_NEAR(wall.critical_frequency_hz, 2914.490918472297, 1e-8);
  EXPECT_NEAR(wall.surface_mass_kg_m2, 96.0 + 6.0 + 9.0, 1e-12);
  // (0.015 * 1.5 * 0.12 + 0.02 * 0.0125) / 0.2
  EXPECT_NEAR(wall.loss_factor, (0.0027 + 0.00025) / 0.2, 1e-15);
}

TEST(SingleSeaWall, CountsDampingSheetsInItsMassButNotInItsLeafThickness) {
  SeaLayer damped = Brick();
  damped.damping[0] = BitumenSheet();
  ExpectBands(Wall({damped, {}, {}}), LeafOf(damped));
}

TEST(SingleSeaWall, WithoutALayerFailsAndSaysSo) {
  try {
    Wall({});
    FAIL() << "a wall without layers was calculated";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().back()), kNoLayerRow);
  }
}

TEST(SingleSeaWall, FailsWithoutThicknessAndWithoutSize) {
  EXPECT_THROW(CalculateSingleSeaWall({.size = kWallSize, .layers = {Brick(), {}, {}}}), ArithmeticFailure);
  EXPECT_THROW(CalculateSingleSeaWall({.total_thickness_mm = 120, .layers = {Brick(), {}, {}}}),
               ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
