#include "models/sea/band_average.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/sea/power_ratio.h"

namespace velmar::models {
namespace {

HzSpectrum Constant(double value) {
  HzSpectrum spectrum;
  spectrum.fill(value);
  return spectrum;
}

const HzSpectrum kNothing{};

TEST(MeanOfBands, KeepsAConstant) {
  for (const double band : MeanOfBands(Constant(37.25))) EXPECT_DOUBLE_EQ(band, 37.25);
}

struct Limits {
  std::size_t band = 0;
  std::size_t first_hz = 0;
  std::size_t last_hz = 0;
};
class BandLimits : public testing::TestWithParam<Limits> {};

TEST_P(BandLimits, TakeTheirFirstAndLastFrequencyAndNoMore) {
  const auto [band, first_hz, last_hz] = GetParam();
  const auto count = static_cast<double>(last_hz - first_hz + 1);
  for (const auto& [hz, share] : {std::pair{first_hz - 1, 0.0}, std::pair{first_hz, 1.0 / count},
                                  std::pair{last_hz, 1.0 / count}, std::pair{last_hz + 1, 0.0}}) {
    HzSpectrum spike{};
    spike[hz] = 1.0;
    EXPECT_NEAR(MeanOfBands(spike)[band], share, 1e-15) << hz;
  }
}
// The first band begins at 44 Hz; the last one goes on to 5599 Hz, beyond the 4999 Hz of its edge. 112 Hz
// lies on an edge and belongs to the band above.
INSTANTIATE_TEST_SUITE_P(Bands, BandLimits,
                         testing::Values(Limits{0, 44, 56}, Limits{1, 57, 70}, Limits{3, 90, 111},
                                         Limits{4, 112, 140}, Limits{19, 3548, 4466},
                                         Limits{20, 4467, 5599}));

TEST(MeanLevelOfBands, IsTheMeanOfTheLevels) {
  HzSpectrum ratio{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    ratio[f] = std::pow(10.0, 20.0 * std::sin(static_cast<double>(f)) + 0.001 * static_cast<double>(f));
  }
  ratio[300] = 1e300;
  ratio[301] = 1e299;
  ratio[302] = 1e-300;
  const auto expected = MeanOfBands(LevelsOf(ratio));
  const auto bands = MeanLevelOfBands(ratio);
  for (std::size_t i = 0; i < bands.size(); ++i) EXPECT_NEAR(bands[i], expected[i], 1e-9);
}

TEST(MeanLevelOfBands, FailsOnARatioWithoutALevel) {
  for (const double bad :
       {0.0, -1.0, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    HzSpectrum ratio = Constant(10.0);
    ratio[5599] = bad;
    EXPECT_THROW(MeanLevelOfBands(ratio), ArithmeticFailure) << bad;
  }
}

TEST(LastMassLawHz, RoundsTheResonanceAndStaysOnTheGrid) {
  // sqrt(350.9² * 1.29 * 18 / (81 * 0.05)) / 6.2832 = 133.723 Hz
  EXPECT_EQ(LastMassLawHz({9.0, 9.0, 0.05}), 134U);
  EXPECT_EQ(LastMassLawHz({0.001, 0.001, 0.0001}), kHighestHz);
  EXPECT_EQ(LastMassLawHz({0.0, 9.0, 0.0}), 0U);
  EXPECT_EQ(LastMassLawHz({9.0, 0.0, 0.0}), 0U);
  EXPECT_EQ(LastMassLawHz({1e9, 1e9, 100.0}), 0U);
  EXPECT_THROW(LastMassLawHz({9.0, 9.0, 0.0}), ArithmeticFailure);
  EXPECT_THROW(LastMassLawHz({9.0, 9.0, -0.05}), ArithmeticFailure);
}

TEST(SeaBandAverage, AddsTheLevelsOfASingleWall) {
  const auto bands = SeaBandAverage({Constant(30.0), Constant(4.0), Constant(1.5), kNothing, {}});
  for (const double band : bands) EXPECT_NEAR(band, 35.5, 1e-12);
}

TEST(SeaBandAverage, FollowsTheMassLawUpToTheResonance) {
  const auto bands = SeaBandAverage({Constant(30.0), Constant(30.0), kNothing, kNothing, {9.0, 9.0, 0.05}});
  double mean = 0.0;
  for (int f = 44; f <= 56; ++f) mean += (20.0 * std::log10(18.0 * f) - 48.0) / 13.0;
  EXPECT_NEAR(bands[0], mean, 1e-11);
  // 112 to 134 Hz by the mass law, 135 to 140 Hz by the two leaves.
  mean = 6.0 * 60.0 / 29.0;
  for (int f = 112; f <= 134; ++f) mean += (20.0 * std::log10(18.0 * f) - 48.0) / 29.0;
  EXPECT_NEAR(bands[4], mean, 1e-11);
  EXPECT_NEAR(bands[5], 60.0, 1e-11);
}

TEST(SeaBandAverage, GivesTheExtraPowerToTheHeavierLeaf) {
  const HzSpectrum extra = Constant(1000.0);
  const auto first = SeaBandAverage({Constant(30.0), Constant(20.0), kNothing, extra, {9.0, 8.0, 0.5}});
  EXPECT_NEAR(first[20], 10.0 * std::log10(2000.0) + 20.0, 1e-11);
  const auto second = SeaBandAverage({Constant(20.0), Constant(30.0), kNothing, extra, {8.0, 9.0, 0.5}});
  EXPECT_NEAR(second[20], 10.0 * std::log10(2000.0) + 20.0, 1e-11);
  const auto equal = SeaBandAverage({Constant(20.0), Constant(30.0), kNothing, extra, {9.0, 9.0, 0.5}});
  EXPECT_NEAR(equal[20], 10.0 * std::log10(1100.0) + 30.0, 1e-11);
}

}  // namespace
}  // namespace velmar::models
