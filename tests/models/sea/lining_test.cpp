#include "models/sea/lining.h"

#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "tests/models/sea/constructions.h"
#include "tests/models/sea/plain_walls.h"

namespace velmar::models {
namespace {

LiningInput Lining(LiningVariant variant = LiningVariant::kDirectLining) {
  LiningInput input{
      .variant = variant,
      .base_rw_db = 50.0F,
      .base_mass_kg_m2 = 230.0F,
      .layers = {Plasterboard(), {}, {}},
      .cavity = {.type = SeaCavityType::kFibre, .depth_mm = 60, .fills = {MineralWool(), {}, {}}},
      .support_distance = 60.0};
  for (std::size_t i = 0; i < input.base_spectrum_db.size(); ++i) {
    input.base_spectrum_db[i] = 35.0 + static_cast<double>(i);
  }
  return input;
}

acoustics::Spectrum Bands(const LiningInput& input) { return CalculateLining(input).reduction_index_db; }

TEST(CompleteBaseSpectrum, TakesACompleteSpectrumAsItIs) {
  const BaseSpectrum base = CompleteBaseSpectrum(Lining().base_spectrum_db);
  EXPECT_TRUE(base.is_complete);
  for (std::size_t i = 0; i < base.level_db.size(); ++i) {
    EXPECT_EQ(base.level_db[i], 35.0 + static_cast<double>(i));
  }
}

TEST(CompleteBaseSpectrum, PutsTwoDecibelsIntoMissingOuterBands) {
  EnteredSpectrum entered = Lining().base_spectrum_db;
  entered[0].reset();
  entered[20] = 0.0;
  const BaseSpectrum base = CompleteBaseSpectrum(entered);
  EXPECT_TRUE(base.is_complete);
  EXPECT_EQ(base.level_db[0], 2.0);
  EXPECT_EQ(base.level_db[1], 36.0);
  EXPECT_EQ(base.level_db[19], 54.0);
  EXPECT_EQ(base.level_db[20], 2.0);
}

TEST(CompleteBaseSpectrum, DropsWhatLiesBeyondAMissingBand) {
  EnteredSpectrum entered = Lining().base_spectrum_db;
  entered[1] = -3.0;
  entered[19].reset();
  const BaseSpectrum base = CompleteBaseSpectrum(entered);
  EXPECT_TRUE(base.is_complete);
  EXPECT_EQ(base.level_db[0], 2.0);
  EXPECT_EQ(base.level_db[1], 2.0);
  EXPECT_EQ(base.level_db[2], 37.0);
  EXPECT_EQ(base.level_db[18], 53.0);
  EXPECT_EQ(base.level_db[20], 2.0);
}

TEST(CompleteBaseSpectrum, AsksForEveryRatedBand) {
  for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
    EnteredSpectrum entered = Lining().base_spectrum_db;
    entered[band].reset();
    EXPECT_FALSE(CompleteBaseSpectrum(entered).is_complete) << band;
    entered[band] = 0.0;
    EXPECT_FALSE(CompleteBaseSpectrum(entered).is_complete) << band;
  }
}

TEST(ConnectionCount, DependsOnTheVariantAndTheHanger) {
  EXPECT_EQ(ConnectionCount(Lining(LiningVariant::kDirectLining)), 3.0);
  EXPECT_EQ(ConnectionCount(Lining(LiningVariant::kFramedLining)), 60.0);
  LiningInput ceiling = Lining(LiningVariant::kCeiling);
  const std::array<std::optional<double>, 5> expected = {std::nullopt, 3.0, 2.0, 0.0, std::nullopt};
  for (int hanger = -1; hanger <= 3; ++hanger) {
    ceiling.hanger = hanger;
    EXPECT_EQ(ConnectionCount(ceiling), expected[static_cast<std::size_t>(hanger + 1)]) << hanger;
  }
}

TEST(Lining, OnSpringHangersIsNotTiedToItsFloor) {
  LiningInput ceiling = Lining(LiningVariant::kCeiling);
  ceiling.hanger = 2;
  LiningInput untied = Lining(LiningVariant::kFramedLining);
  untied.support_distance = 0.0;
  EXPECT_EQ(Bands(ceiling), Bands(untied));
  ceiling.hanger = 1;
  const auto tied = Bands(ceiling);
  EXPECT_LT(tied[12], Bands(untied)[12]);
}

TEST(Lining, RigidlyHungIsTheSameAsOnAWall) {
  LiningInput ceiling = Lining(LiningVariant::kCeiling);
  ceiling.hanger = 0;
  EXPECT_EQ(Bands(ceiling), Bands(Lining()));
}

TEST(Lining, AddsToItsBaseElementAboveTheResonance) {
  // 230 and 9 kg/m² at 60 mm: resonance at 88 Hz.
  LiningInput input = Lining();
  const auto bands = Bands(input);
  for (std::size_t i = 4; i <= 18; ++i) EXPECT_GT(bands[i], 35.0 + static_cast<double>(i));
  double mean = 0.0;
  for (int f = 44; f <= 56; ++f) mean += (20.0 * std::log10(239.0 * f) - 48.0) / 13.0;
  EXPECT_NEAR(bands[0], mean, 1e-9);
}

TEST(Lining, FollowsItsBaseElementDecibelByDecibel) {
  LiningInput quiet = Lining();
  for (auto& level : quiet.base_spectrum_db) *level += 6.0;
  const auto bands = Bands(Lining());
  const auto quieter = Bands(quiet);
  EXPECT_EQ(quieter[0], bands[0]) << "below the resonance the masses alone decide";
  for (std::size_t i = 4; i <= 19; ++i) EXPECT_NEAR(quieter[i] - bands[i], 6.0, 1e-9);
}

TEST(Lining, HandsTheMassesOfItsCavityToTheHeavierSide) {
  for (const float base_mass : {230.0F, 4.0F}) {
    LiningInput input = Lining();
    input.base_mass_kg_m2 = base_mass;
    input.cavity.type = SeaCavityType::kFibreMass;
    input.cavity.masses[0] = HungBoard();
    const auto bands = Bands(input);
    const auto expected = plain::Lining(input, CompleteBaseSpectrum(input.base_spectrum_db).level_db, 3.0);
    for (std::size_t i = 0; i < bands.size(); ++i) EXPECT_NEAR(bands[i], expected[i], 1e-9) << base_mass;
  }
}

TEST(Lining, ReportsItsOwnLayers) {
  LiningInput input = Lining();
  input.layers[1] = Brick();
  const LiningOutcome outcome = CalculateLining(input);
  EXPECT_NEAR(outcome.critical_frequency_hz, 2914.490918472297, 1e-8);
  EXPECT_NEAR(outcome.surface_mass_kg_m2, 105.0, 1e-12);
}

TEST(Lining, IsNotCalculatedPastItsChecksOrForAGenericVariant) {
  LiningInput input = Lining();
  input.base_mass_kg_m2 = 0.0F;
  EXPECT_THROW(CalculateLining(input), std::invalid_argument);
  EXPECT_THROW(CalculateLining(Lining(LiningVariant::kGenericLining)), std::invalid_argument);
}

TEST(Lining, FailsWithoutLayersAndWithANegativeSupportDistance) {
  LiningInput input = Lining();
  input.layers = {};
  EXPECT_THROW(CalculateLining(input), ArithmeticFailure);
  input = Lining(LiningVariant::kFramedLining);
  input.support_distance = -40.0;
  EXPECT_THROW(CalculateLining(input), ArithmeticFailure);
}

TEST(GenericLiningMass, AddsLayersDampingSheetsAndTheFirstFillShown) {
  LiningInput input = Lining(LiningVariant::kGenericLining);
  input.cavity.fills[1] = MineralWool();
  EXPECT_NEAR(GenericLiningMass(input), 9.0 + 2.0, 1e-12);
  input.layers[2] = Plasterboard();
  input.layers[2]->damping[1] = BitumenSheet();
  EXPECT_NEAR(GenericLiningMass(input), 9.0 + 2.0 + 9.0 + 6.0, 1e-12);
  input.cavity.type = SeaCavityType::kEmpty;
  EXPECT_NEAR(GenericLiningMass(input), 24.0, 1e-12);
}

}  // namespace
}  // namespace velmar::models
