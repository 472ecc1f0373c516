#include "validation/prediction.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "tests/validation/shipped_measurements.h"

namespace velmar::validation {
namespace {

const PredictionOutcome& Outcome() {
  static const PredictionOutcome outcome = PredictWithCalculations(ShippedMeasurements());
  return outcome;
}

TEST(Prediction, EverySetUpRuns) {
  EXPECT_TRUE(Outcome().refused.empty()) << Outcome().refused.front().id << Outcome().refused.front().reason;
  for (const Prediction& prediction : Outcome().predictions) {
    EXPECT_TRUE(std::isfinite(prediction.predicted)) << prediction.measured << prediction.model;
    EXPECT_GT(prediction.value, -10.0);
    EXPECT_LT(prediction.value, 100.0);
  }
}

TEST(Prediction, RatesAsTheConstructionWasRated) {
  elements::MeasuredConstruction construction;
  acoustics::Spectrum spectrum;
  // The reference curve of ISO 717-1 itself: Rw 52, and 52 out of octaves as well within the rounding.
  spectrum = {30, 30, 30, 33, 36, 39, 42, 45, 48, 51, 52, 53, 54, 55, 56, 56, 56, 56, 56, 56, 56};
  EXPECT_FALSE(RateAsMeasured(construction, spectrum));
  construction.rw_of_octaves = 50.0;
  EXPECT_EQ(RateAsMeasured(construction, spectrum)->quantity, "Rw (octaves)");
  construction.rw_plus_c = 49.0;
  EXPECT_EQ(RateAsMeasured(construction, spectrum)->quantity, "Rw+C");
  construction.stc = 48.0;
  EXPECT_EQ(RateAsMeasured(construction, spectrum)->quantity, "STC");
  construction.rw = 47.0;
  const auto rated = RateAsMeasured(construction, spectrum);
  EXPECT_EQ(rated->quantity, "Rw");
  EXPECT_EQ(rated->value, 47.0);
}

TEST(Prediction, ErrorsOfOctavesStandWhereBothAreKnown) {
  elements::MeasuredConstruction construction{
      .rw_of_octaves = 40.0, .band_width = elements::BandWidth::kOctave, .bands = {{125, 30}, {500, 35}}};
  acoustics::Spectrum flat;
  flat.fill(40.0);
  const auto rated = RateAsMeasured(construction, flat);
  ASSERT_TRUE(rated);
  EXPECT_FALSE(rated->octave_errors[0]);
  EXPECT_NEAR(rated->octave_errors[1].value(), 10.0, 1e-9);
  EXPECT_FALSE(rated->octave_errors[2]);
  EXPECT_NEAR(rated->octave_errors[3].value(), 5.0, 1e-9);
}

// Three thirds of 30, 33 and 40 dB carry the energy of an octave of 33.03 dB.
TEST(Prediction, MeasuredThirdsMakeAnOctave) {
  elements::MeasuredConstruction construction{.rw = 40.0,
                                              .band_width = elements::BandWidth::kThirdOctave,
                                              .bands = {{100, 30}, {125, 33}, {160, 40}, {200, 20}}};
  acoustics::Spectrum flat;
  flat.fill(40.0);
  const auto rated = RateAsMeasured(construction, flat);
  ASSERT_TRUE(rated);
  EXPECT_NEAR(rated->octave_errors[1].value(), 40.0 - 32.7268, 1e-3);
  EXPECT_FALSE(rated->octave_errors[2]);
}

TEST(Prediction, FeaturesAreThoseOfTheCalculationsOwnFields) {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kDoubleWallGeneric;
  setup.leaf1.rows[0].slot.density_kg_m3 = 800.0;
  setup.leaf1.rows[0].slot.thickness_mm = 12.5;
  setup.cavity.depth_text = "75";
  setup.cavity.kind = elements::CavityKind::kFibrous;
  setup.sea_cavity.depth_text = "50";
  EXPECT_EQ(FeaturesOf(setup), (Features{.mass_kg_m2 = 10.0, .depth_mm = 75.0, .filled = true}));
  setup.calculation = elements::Calculation::kSingleWallGeneric;
  EXPECT_EQ(FeaturesOf(setup), (Features{.mass_kg_m2 = 10.0}));
}

}  // namespace
}  // namespace velmar::validation
