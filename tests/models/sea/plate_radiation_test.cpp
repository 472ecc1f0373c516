#include "models/sea/plate_radiation.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "models/sea/layers.h"
#include "tests/models/sea/constructions.h"
#include "tests/models/sea/plain_primitives.h"

namespace velmar::models {
namespace {

SeaPlateInput Board(double cap = kSingleWallRadiationCap) { return PlateOf(Plasterboard(), kWallSize, cap); }

TEST(SeaPlateRadiation, GivesTheBendingWaveOfOneSheet) {
  const SeaPlate plate = SeaPlateRadiation(Board());
  EXPECT_EQ(plate.fault, SeaPlateFault::kNone);
  EXPECT_DOUBLE_EQ(plate.surface_mass_kg_m2, 9.0);  // 0.0125 * 720
  EXPECT_DOUBLE_EQ(plate.thickness_m, 0.0125);
  // sqrt(2.5e9 / (720 * 0.91))
  EXPECT_NEAR(plate.longitudinal_speed_m_s, 1953.363462243731, 1e-9);
  // Without damping sheets the stiffness is that of one sheet: 2.5e9 * 0.0125³ / 12 = 406.901 N·m;
  // 350.9² / 6.2832 * sqrt(9 / 406.901)
  EXPECT_NEAR(plate.critical_frequency_hz, 2914.490918472297, 1e-8);
}

TEST(SeaPlateRadiation, AddsTheThirdSheetInASecondStage) {
  SeaPlateInput input = Board();
  input.sheets[2] = {.thickness_m = 0.004, .youngs_modulus_pa = 5e7, .density_kg_m3 = 1500};
  // First stage 406.901 N·m and equivalent modulus 12 * 406.901 / 0.0125³ = 2.5e9 Pa. The second stage:
  // axis (0.029 * 5e7 + 2.5e9 * 0.0125) / (2 * 2.55e9) = 0.00641176 m, stiffness 421.0694 N·m, 15 kg/m².
  const SeaPlate plate = SeaPlateRadiation(input);
  EXPECT_NEAR(plate.critical_frequency_hz, 3698.7472945894465, 1e-8);
  EXPECT_NEAR(plate.surface_mass_kg_m2, 15.0, 1e-12);
  EXPECT_NEAR(plate.thickness_m, 0.0165, 1e-12);
}

TEST(SeaPlateRadiation, RadiatesByEdgeModesBelowCoincidence) {
  // At 500 Hz: lambda 0.414194, D 0.828443, delta2 0.143101, L 0.881326, delta1 0.0523547, wavelength at
  // coincidence 0.120398 m, S 11.2 m², P 13.6 m: 2 (0.00129424 delta2 + 0.146198 delta1).
  EXPECT_NEAR(SeaPlateRadiation(Board()).radiation_efficiency[500], 0.01567871718217191, 1e-13);
}

TEST(SeaPlateRadiation, RadiatesWithTheSquareOfTheFrequencyAtTheLowEnd) {
  // 4 * 11.2 / 350.9² f²; at 4 Hz the edge modes (0.0075) already radiate less.
  const SeaPlate plate = SeaPlateRadiation(Board());
  for (const std::size_t f : {1U, 2U, 3U}) {
    const auto hz = static_cast<double>(f);
    EXPECT_NEAR(plate.radiation_efficiency[f], 4.0 * 11.2 / (350.9 * 350.9) * hz * hz, 1e-15);
  }
}

class RadiationCap : public testing::TestWithParam<double> {};

TEST_P(RadiationCap, IsNeverExceededAndReachedAboveCoincidence) {
  for (const SeaLayer& layer : {Plasterboard(), Brick()}) {
    const SeaPlate plate = SeaPlateRadiation(PlateOf(layer, kWallSize, GetParam()));
    const auto& sigma = plate.radiation_efficiency;
    EXPECT_EQ(*std::max_element(sigma.begin(), sigma.end()), GetParam());
    EXPECT_EQ(sigma[kHighestHz], GetParam());
    EXPECT_GE(*std::min_element(sigma.begin(), sigma.end()), 0.0);
  }
}
INSTANTIATE_TEST_SUITE_P(Caps, RadiationCap,
                         testing::Values(kSingleWallRadiationCap, kDoubleWallRadiationCap));

TEST(SeaPlateRadiation, NeverTurnsSupersonicWhenCoincidenceLiesAboveTheGrid) {
  SeaLayer thin = Plasterboard();
  thin.thickness_mm = 4.0;  // coincidence at 9107.8 Hz
  const SeaPlate plate = SeaPlateRadiation(PlateOf(thin, kWallSize, kSingleWallRadiationCap));
  ASSERT_GT(plate.critical_frequency_hz, 9000.0);
  // All edge modes: the efficiency still rises at the end of the grid and stays below its cap.
  EXPECT_LT(plate.radiation_efficiency[kHighestHz - 1], plate.radiation_efficiency[kHighestHz]);
  EXPECT_LT(plate.radiation_efficiency[kHighestHz], 0.2);
}

TEST(SeaPlateRadiation, BeginsAtOneHertzAgainWhenNoEdgeModeIsBelowThePlateau) {
  // 1 m by 1 m of concrete: every edge mode radiates more than the plateau, so nothing is kept of the rise
  // with f² that the low end would have.
  SeaPlateInput input{.length_a_m = 1.0, .length_b_m = 1.0, .poissons_ratio = 0.2};
  input.sheets[0] = {.thickness_m = 0.25, .youngs_modulus_pa = 20e9, .density_kg_m3 = 2300};
  const SeaPlate plate = SeaPlateRadiation(input);
  EXPECT_NEAR(plate.critical_frequency_hz, 92.08425673997846, 1e-9);
  EXPECT_EQ(plate.radiation_efficiency[1], kSingleWallRadiationCap);
  EXPECT_EQ(plate.radiation_efficiency[46], kSingleWallRadiationCap);
}

TEST(SeaPlateRadiation, DoesNotCareWhichSideIsWhich) {
  SeaPlateInput turned = Board();
  std::swap(turned.length_a_m, turned.length_b_m);
  const auto upright = SeaPlateRadiation(Board()).radiation_efficiency;
  const auto lying = SeaPlateRadiation(turned).radiation_efficiency;
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_NEAR(upright[f], lying[f], 1e-14) << f;
}

/// A board whose critical frequency is `hz` to the last digit, found among its neighbours in density.
SeaPlateInput BoardOnGrid(double hz) {
  SeaPlateInput input = Board();
  const double stiffness = 2.5e9 * std::pow(0.0125, 3) / 12.0;
  const double mass = stiffness * std::pow(hz * 6.2832 / (350.9 * 350.9), 2);
  double& density = input.sheets[0].density_kg_m3;
  density = mass / 0.0125;
  for (int i = 0; i < 50; ++i) density = std::nextafter(density, 0.0);
  for (int i = 0; i < 100 && SeaPlateRadiation(input).fault == SeaPlateFault::kNone; ++i) {
    density = std::nextafter(density, std::numeric_limits<double>::max());
  }
  return input;
}

class CoincidenceOnGrid : public testing::TestWithParam<double> {};

TEST_P(CoincidenceOnGrid, LeavesEverythingAtZero) {
  const SeaPlateInput input = BoardOnGrid(GetParam());
  const SeaPlate plate = SeaPlateRadiation(input);
  EXPECT_EQ(plate.fault, SeaPlateFault::kCoincidenceOnGrid);
  EXPECT_EQ(plate.surface_mass_kg_m2, 0.0);
  EXPECT_EQ(plate.critical_frequency_hz, 0.0);
  EXPECT_EQ(plate.longitudinal_speed_m_s, 0.0);
  EXPECT_EQ(plate.thickness_m, 0.0);
  EXPECT_EQ(plate.radiation_efficiency, HzSpectrum{});
  EXPECT_EQ(plain::PlateRadiation(input).m, 0.0) << "the formulas themselves have no pole here";
}
// Above 6000 Hz the pole is met too: the formulas are formed up to 100 Hz beyond coincidence.
INSTANTIATE_TEST_SUITE_P(Frequencies, CoincidenceOnGrid, testing::Values(500.0, 3000.0, 7000.0));

struct NoPlate {
  const char* name = "";
  SeaPlateInput input{};
};
class NoBendingWave : public testing::TestWithParam<NoPlate> {};

SeaPlateInput Changed(auto change) {
  SeaPlateInput input = Board();
  change(input);
  return input;
}

TEST_P(NoBendingWave, IsAFaultAndNotANumber) {
  const SeaPlate plate = SeaPlateRadiation(GetParam().input);
  EXPECT_EQ(plate.fault, SeaPlateFault::kNoBendingWave);
  EXPECT_EQ(plate.surface_mass_kg_m2, 0.0);
  EXPECT_EQ(plain::PlateRadiation(GetParam().input).m, 0.0);
}
INSTANTIATE_TEST_SUITE_P(
    Inputs, NoBendingWave,
    testing::Values(NoPlate{"no_density", Changed([](auto& in) { in.sheets[0].density_kg_m3 = 0.0; })},
                    NoPlate{"no_modulus", Changed([](auto& in) { in.sheets[0].youngs_modulus_pa = 0.0; })},
                    NoPlate{"no_thickness", Changed([](auto& in) { in.sheets[0].thickness_m = 0.0; })},
                    NoPlate{"poisson_of_1", Changed([](auto& in) { in.poissons_ratio = 1.0; })},
                    NoPlate{"poisson_above_1", Changed([](auto& in) { in.poissons_ratio = 1.2; })},
                    NoPlate{"no_length", Changed([](auto& in) { in.length_a_m = 0.0; })},
                    NoPlate{"nothing", {}}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace velmar::models
