#include "models/sea/porous_layer.h"

#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

HzSpectrum Constant(double value) {
  HzSpectrum spectrum;
  spectrum.fill(value);
  return spectrum;
}

const SeaPorousLayer kWool{.is_present = true, .thickness_m = 0.05, .density_kg_m3 = 40.0};

TEST(SeaPorousLayerAttenuation, IsALittleEvenWithoutALayer) {
  const HzSpectrum attenuation = SeaPorousLayerAttenuation({}, Constant(1.0));
  for (std::size_t f = 1; f <= kHighestHz; ++f) ASSERT_NEAR(attenuation[f], -10.0 * std::log10(0.98), 1e-12);
}

TEST(SeaPorousLayerAttenuation, AddsAbsorptionAndMass) {
  // At 1000 Hz: 10 lg(1 / 0.4) - 10 lg 0.98 = 4.06714 dB and 20 lg(1000 * 3.1416 * 2 / 452.661) - 5.5 =
  // 17.34816 dB, added as powers.
  EXPECT_NEAR(SeaPorousLayerAttenuation(kWool, Constant(0.6))[1000], 17.54753337273715, 1e-11);
}

TEST(SeaPorousLayerAttenuation, TakesTheCoefficientBelowWhereOneIsReached) {
  HzSpectrum reaching = Constant(0.5);
  for (std::size_t f = 300; f < 400; ++f) reaching[f] = 1.0 + 0.01 * static_cast<double>(f);
  EXPECT_EQ(SeaPorousLayerAttenuation(kWool, reaching), SeaPorousLayerAttenuation(kWool, Constant(0.5)));
}

TEST(SeaPorousLayerAttenuation, FailsWithoutMassOrWithNothingBelow) {
  EXPECT_THROW(SeaPorousLayerAttenuation({true, 0.0, 40.0}, Constant(0.5)), ArithmeticFailure);
  EXPECT_THROW(SeaPorousLayerAttenuation({true, 0.05, 0.0}, Constant(0.5)), ArithmeticFailure);
  EXPECT_THROW(SeaPorousLayerAttenuation(kWool, Constant(1.0)), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
