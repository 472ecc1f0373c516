#include "models/sea/cavity.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/sea/leaf_transmission.h"
#include "tests/models/sea/constructions.h"

namespace velmar::models {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const HzSpectrum kNothing{};

HzSpectrum Constant(double value) {
  HzSpectrum spectrum;
  spectrum.fill(value);
  return spectrum;
}

SeaCavity FullCavity(SeaCavityType type) {
  return {.type = type,
          .depth_mm = 300,
          .fills = {MineralWool(), MineralWool(), MineralWool()},
          .masses = {HungBoard(), HungBoard()}};
}

struct Contents {
  SeaCavityType type{};
  std::size_t fills = 0;
  std::size_t masses = 0;
};
class CavityTypes : public testing::TestWithParam<Contents> {};

TEST_P(CavityTypes, CountOnlyWhatTheyShow) {
  const auto [type, fills, masses] = GetParam();
  EXPECT_EQ(static_cast<std::size_t>(acoustics::FibreCount(type)), fills);
  EXPECT_EQ(static_cast<std::size_t>(acoustics::MassCount(type)), masses);
  EXPECT_DOUBLE_EQ(CavityContentsThickness(FullCavity(type)),
                   50.0 * static_cast<double>(fills) + 12.5 * static_cast<double>(masses));
  // What is hidden does not reach the result.
  SeaCavity hidden_changed = FullCavity(type);
  for (std::size_t i = fills; i < 3; ++i) hidden_changed.fills[i]->density_kg_m3 = 0.0;
  for (std::size_t i = masses; i < 2; ++i) hidden_changed.masses[i]->density_kg_m3 = 0.0;
  EXPECT_EQ(SeaCavityLayers(hidden_changed, kWallSize, kNothing, kNothing).cavity_db,
            SeaCavityLayers(FullCavity(type), kWallSize, kNothing, kNothing).cavity_db);
}
INSTANTIATE_TEST_SUITE_P(All, CavityTypes,
                         testing::Values(Contents{SeaCavityType::kEmpty, 0, 0},
                                         Contents{SeaCavityType::kFibre, 1, 0},
                                         Contents{SeaCavityType::kFibreMass, 1, 1},
                                         Contents{SeaCavityType::kMassFibreMass, 1, 2},
                                         Contents{SeaCavityType::kFibreMassFibre, 2, 1},
                                         Contents{SeaCavityType::kFibreMassFibreMass, 2, 2},
                                         Contents{SeaCavityType::kFibreMassFibreMassFibre, 3, 2}));

TEST(CavityContents, IncludeTheDampingSheetsOfTheMasses) {
  SeaCavity cavity = FullCavity(SeaCavityType::kFibreMass);
  cavity.masses[0]->damping = BitumenSheet();
  EXPECT_DOUBLE_EQ(CavityContentsThickness(cavity), 50.0 + 12.5 + 4.0);
  EXPECT_EQ(CavityContentsThickness({}), 0.0);
}

TEST(CavityContents, NameTheFillsWithoutAbsorption) {
  SeaCavity cavity = FullCavity(SeaCavityType::kFibreMassFibre);
  EXPECT_THAT(FillsWithoutAbsorption(cavity), IsEmpty());
  cavity.fills[0]->name = "Fibra A";
  cavity.fills[0]->absorption[18] = kNoAbsorption;
  cavity.fills[1]->name = "Fibra B";
  cavity.fills[1]->absorption.fill(kNoAbsorption);
  cavity.fills[2]->absorption.fill(kNoAbsorption);  // not shown
  EXPECT_THAT(FillsWithoutAbsorption(cavity), ElementsAre("Fibra A", "Fibra B"));
}

TEST(SeaCavityLayers, GiveAnEmptyCavityAQuarterOfADecibel) {
  const SeaCavityLevels levels = SeaCavityLayers({}, kWallSize, kNothing, kNothing);
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    ASSERT_NEAR(levels.cavity_db[f], -30.0 * std::log10(0.98), 1e-12);  // 0.263 dB
  }
  EXPECT_EQ(levels.extra_power, HzSpectrum{});
  EXPECT_EQ(levels.fill_thickness_m, 0.0);
}

TEST(SeaCavityLayers, HandTheMassesToTheSidesAsPowerOfAtLeastOne) {
  const auto levels =
      SeaCavityLayers(FullCavity(SeaCavityType::kFibreMassFibreMass), kWallSize, kNothing, kNothing);
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_GE(levels.extra_power[f], 1.0);
  EXPECT_EQ(levels.extra_power[3], 1.0);  // both boards hold nothing back at 3 Hz
  EXPECT_DOUBLE_EQ(levels.fill_thickness_m, 0.1);
  // Two equal boards hand over twice what one does.
  SeaCavity one = FullCavity(SeaCavityType::kFibreMass);
  const auto single = SeaCavityLayers(one, kWallSize, kNothing, kNothing);
  EXPECT_NEAR(levels.extra_power[1000], 2.0 * single.extra_power[1000], 1e-9 * levels.extra_power[1000]);
}

TEST(SeaCavityLayers, RaiseTheLossesOfADampedMass) {
  SeaCavity damped = FullCavity(SeaCavityType::kFibreMass);
  // A sheet of no thickness leaves the plate as it is and still counts as damping.
  damped.masses[0]->damping = SeaDampingSheet{0.0, 1500, 0.0};
  SeaCavity lossy = FullCavity(SeaCavityType::kFibreMass);
  lossy.masses[0]->loss_factor *= 1.5;
  EXPECT_EQ(SeaCavityLayers(damped, kWallSize, kNothing, kNothing).cavity_db,
            SeaCavityLayers(lossy, kWallSize, kNothing, kNothing).cavity_db);
}

TEST(SeaCavityLayers, KeepTheWholeModulusOfAMass) {
  SeaCavity cavity = FullCavity(SeaCavityType::kFibreMass);
  cavity.masses[0]->youngs_modulus_gpa = 5;  // a layer of a side would be calculated with 3 GPa
  SeaPlateInput board{.length_a_m = kWallSize.length_a_m,
                      .length_b_m = kWallSize.length_b_m,
                      .poissons_ratio = 0.3,
                      .radiation_cap = kDoubleWallRadiationCap};
  board.sheets[0] = {.thickness_m = 0.0125, .youngs_modulus_pa = 5e9, .density_kg_m3 = 720};
  const SeaPlate plate = SeaPlateRadiation(board);
  const HzSpectrum level = SeaLeafTransmission(
      plate.radiation_efficiency, {plate.longitudinal_speed_m_s, plate.surface_mass_kg_m2, 0.0125, 0.02});
  const auto extra = SeaCavityLayers(cavity, kWallSize, kNothing, kNothing).extra_power;
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_NEAR(10.0 * std::log10(extra[f]), level[f], 1e-9) << f;
}

TEST(SeaCavityLayers, FailOnAMassOrAFillWithoutMass) {
  SeaCavity cavity = FullCavity(SeaCavityType::kFibreMass);
  cavity.fills[0]->thickness_mm = 0.0;
  EXPECT_THROW(SeaCavityLayers(cavity, kWallSize, kNothing, kNothing), ArithmeticFailure);
  cavity = FullCavity(SeaCavityType::kFibreMass);
  cavity.masses[0]->density_kg_m3 = 0.0;
  try {
    SeaCavityLayers(cavity, kWallSize, kNothing, kNothing);
    FAIL() << "a mass without density was calculated";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(LeadingRow(failure.UserMessage().back()), kNoBendingWaveRow);
  }
}

TEST(SeaCavityCombine, AddsMassesAndFills) {
  const auto level =
      SeaCavityCombine({Constant(12.0), Constant(0.0), Constant(3.0), kNothing, kNothing, {12.0, 0.0, 0.0}});
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_NEAR(level[f], 15.0, 1e-12);
}

TEST(SeaCavityCombine, FollowsTheMassLawUpToTheResonanceOfTwoMasses) {
  const auto level =
      SeaCavityCombine({Constant(10.0), Constant(10.0), Constant(5.0), kNothing, kNothing, {9.0, 9.0, 0.05}});
  EXPECT_EQ(level[10], 0.0);  // 20 lg(180) - 48 = -2.9 dB
  EXPECT_NEAR(level[134], 20.0 * std::log10(18.0 * 134.0) - 48.0, 1e-11);
  EXPECT_NEAR(level[135], 25.0, 1e-11);
}

TEST(SeaCavityCombine, TakesBothBridgesIn) {
  const auto level =
      SeaCavityCombine({Constant(20.0), Constant(0.0), Constant(0.0), Constant(0.01), Constant(0.08), {}});
  EXPECT_NEAR(level[500], 10.0, 1e-12);  // -10 lg(0.01 + 0.01 + 0.08)
  const auto leaky =
      SeaCavityCombine({Constant(20.0), Constant(0.0), Constant(0.0), Constant(3.0), kNothing, {}});
  EXPECT_EQ(leaky[500], 0.0);
}

}  // namespace
}  // namespace velmar::models
