#include "models/sea/per_hz_spectra.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::models {
namespace {

TEST(SeaAbsorptionPerHz, MeetsTheBandsAndRunsStraightBetweenThem) {
  AbsorptionBands bands{};
  for (std::size_t i = 0; i < bands.size(); ++i) bands[i] = 0.05 * static_cast<double>(i);
  const HzSpectrum alpha = SeaAbsorptionPerHz(bands);
  for (std::size_t i = 0; i + 1 < bands.size(); ++i) {
    EXPECT_NEAR(alpha[static_cast<std::size_t>(AbsorptionBandFrequency(i))], bands[i], 1e-12) << i;
  }
  EXPECT_NEAR(alpha[450], 0.325, 1e-12);  // between 0.30 at 400 Hz and 0.35 at 500 Hz
  EXPECT_NEAR(alpha[6000], 0.85 + 0.05 * 1000.0 / 1300.0, 1e-12);
}

TEST(SeaAbsorptionPerHz, GoesThroughTheOriginBelowItsFirstBand) {
  AbsorptionBands bands{};
  bands.fill(0.4);
  const HzSpectrum alpha = SeaAbsorptionPerHz(bands);
  EXPECT_EQ(alpha[0], 0.0);
  EXPECT_NEAR(alpha[25], 0.1, 1e-15);
  EXPECT_NEAR(alpha[100], 0.4, 1e-15);
}

TEST(SeaAbsorptionPerHz, LimitsBothEndsOfALineTo099) {
  AbsorptionBands bands{};
  bands.fill(1.2);
  bands[5] = 0.5;
  const HzSpectrum alpha = SeaAbsorptionPerHz(bands);
  EXPECT_NEAR(alpha[125], 0.99, 1e-12);
  EXPECT_NEAR(alpha[250], 0.99, 1e-12);
  EXPECT_NEAR(alpha[315], 0.5, 1e-12);
  EXPECT_NEAR(alpha[400], 0.99, 1e-12);
  for (std::size_t f = 100; f <= kHighestHz; ++f) ASSERT_LE(alpha[f], 0.99 + 1e-12);
  // The line through the origin is not limited; at its end the next line wins.
  EXPECT_NEAR(alpha[99], 1.188, 1e-12);
  EXPECT_NEAR(alpha[100], 0.99, 1e-12);
}

TEST(SeaSpectrumPerHz, MeetsTheBandsWithoutALimitAndEndsAt5000Hz) {
  acoustics::Spectrum bands{};
  for (std::size_t i = 0; i < bands.size(); ++i) bands[i] = 20.0 + static_cast<double>(i);
  const HzSpectrum level = SeaSpectrumPerHz(bands);
  for (std::size_t i = 0; i < bands.size(); ++i) {
    EXPECT_NEAR(level[static_cast<std::size_t>(acoustics::BandCentre(i))], bands[i], 1e-11) << i;
  }
  EXPECT_NEAR(level[25], 10.0, 1e-12);
  EXPECT_NEAR(level[4500], 39.5, 1e-11);
  for (std::size_t f = 5001; f <= kHighestHz; ++f) ASSERT_EQ(level[f], 0.0);
}

TEST(AbsorptionBandFrequency, HasNineteenBands) {
  EXPECT_EQ(AbsorptionBandFrequency(0), 100.0);
  EXPECT_EQ(AbsorptionBandFrequency(18), 6300.0);
  EXPECT_THROW(AbsorptionBandFrequency(19), std::out_of_range);
}

}  // namespace
}  // namespace velmar::models
