#include "models/walls/single_wall.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "foundation/failure.h"
#include "models/plates/transmission.h"

namespace velmar::models {
namespace {

const PlateLayer kBrick{1, 250, 800, 3, 0.02, 0.2};
const PlateLayer kPlaster{1, 15, 1400, 4, 0.01, 0.2};

SingleWallResult Calculate(std::vector<PlateLayer> layers, double a_m = 4, double b_m = 3) {
  return CalculateSingleWall({std::move(layers), {a_m, b_m}});
}

// h = 0.25 + 2 * 0.015 = 0.28 m, m' = 800 * 0.25 + 1400 * 0.03 = 242 kg/m²,
// Sum E h²/(1 - nu²) = (3e9 * 0.0625 + 4e9 * 0.0009) / 0.96 = 1.9906250e8 N (two sheets of plaster in one
// row), B = 1.990625e8 * 0.28 / 12 = 4644791.667 N·m, eta = (0.02 * 0.25 + 0.01 * 0.03) / 0.28 = 0.0189285714
TEST(SingleWall, LeavesItsPlateValues) {
  PlateLayer plaster = kPlaster;
  plaster.multiplicity = 2;
  const SingleWallResult wall = Calculate({kBrick, plaster});
  EXPECT_DOUBLE_EQ(wall.mass_kg_m2, 242);
  EXPECT_NEAR(wall.bending_n_m, 1.990625e8 * 0.28 / 12, 1e-6);
  EXPECT_NEAR(wall.internal_loss_factor, 0.0053 / 0.28, 1e-15);
  EXPECT_NEAR(wall.critical_frequency_hz, 350.9 * 350.9 / 6.2832 * std::sqrt(12 * (242 / 0.28) / 1.990625e8),
              1e-9);
}

TEST(SingleWall, AveragesTheGridPointsOfABand) {
  // Band 80 Hz holds one grid point, so it is BandR there with the loss factor of 80 Hz.
  const SingleWallResult wall = Calculate({kBrick});
  const LossTerms losses =
      FindLossTerms(wall.mass_kg_m2, wall.internal_loss_factor, wall.critical_frequency_hz, {4, 3});
  EXPECT_NEAR(wall.spectrum[2],
              BandR(80, Plate{wall.mass_kg_m2, wall.bending_n_m, TotalLossFactor(losses, 80, 0)}), 1e-12);
}

TEST(SingleWall, DoesNotTellItsSidesApart) {
  const SingleWallResult upright = Calculate({kBrick, kPlaster}, 2.7, 5.2);
  const SingleWallResult lying = Calculate({kBrick, kPlaster}, 5.2, 2.7);
  for (std::size_t band = 0; band < 21; ++band)
    EXPECT_NEAR(upright.spectrum[band], lying.spectrum[band], 1e-11);
}

TEST(SingleWall, OfTwoSheetsIsThatOfOneTwiceAsThick) {
  PlateLayer two = kPlaster;
  two.multiplicity = 2;
  PlateLayer thick = kPlaster;
  thick.thickness_mm = 30;
  EXPECT_EQ(Calculate({two}).spectrum, Calculate({thick}).spectrum);
}

TEST(SingleWall, OfAHeavyConcreteSlabRatesLikeOne) {
  // 20 cm of concrete, 460 kg/m²: measured slabs of this kind lie between 54 and 60 dB.
  const SingleWallResult slab = Calculate({{1, 200, 2300, 30, 0.006, 0.2}});
  const double rw = acoustics::RatingOfShift(acoustics::FindShift(slab.spectrum));
  EXPECT_GE(rw, 52);
  EXPECT_LE(rw, 62);
}

TEST(SingleWall, DipsAtItsCriticalFrequency) {
  const SingleWallResult pane = Calculate({{1, 6, 2500, 70, 0.01, 0.2}}, 1.25, 1.5);  // fc = 2095 Hz
  EXPECT_LT(pane.spectrum[16], pane.spectrum[13]);
  EXPECT_LT(pane.spectrum[16], pane.spectrum[19]);
}

TEST(SingleWall, TakesAnyPlateThatIsOne) {
  for (const double modulus_gpa : {1e-4, 0.01, 1.0, 200.0}) {  // fc from far above to far below the grid
    EXPECT_NO_THROW(Calculate({{1, 12.5, 700, modulus_gpa, 0.01, 0.3}}));
  }
}

TEST(SingleWall, RefusesWhatIsNoPlate) {
  EXPECT_THROW(Calculate({}), ArithmeticFailure);
  EXPECT_THROW(Calculate({{1, 0, 800, 3, 0.02, 0.2}}), ArithmeticFailure);
  EXPECT_THROW(Calculate({{1, 100, 0, 3, 0.02, 0.2}}), ArithmeticFailure);
  EXPECT_THROW(Calculate({kBrick}, 0, 3), ArithmeticFailure);
  EXPECT_THROW(Calculate({kBrick}, 4, 0), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
