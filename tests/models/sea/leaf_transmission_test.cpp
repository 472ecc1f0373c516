#include "models/sea/leaf_transmission.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

HzSpectrum Constant(double value) {
  HzSpectrum spectrum;
  spectrum.fill(value);
  return spectrum;
}

const SeaLeaf kBoard{.longitudinal_speed_m_s = 1953.363462243731,
                     .surface_mass_kg_m2 = 9.0,
                     .thickness_m = 0.0125,
                     .loss_factor = 0.02};

double NormalIncidence(double mass, double hz) {
  return 10.0 * std::log10(1.0 + std::pow(6.2832 * hz * mass / 905.322, 2));
}

TEST(SeaLeafTransmission, BalancesTheResonantAndTheMassControlledPath) {
  // At 1000 Hz: eta = 0.02 + 9 / (485 sqrt(1000)) = 0.0205868, K = 606570557.6,
  // X = 0.05² K / (2 * 6283.2³ * 81 * 0.0125 * eta * 1953.36) = 7.50726e-8, Y = 1422.08 / (81 * 6283.2²)
  // = 4.44710e-7, R = 10 lg((1 / 1810.644) / (X + Y)).
  EXPECT_NEAR(SeaLeafTransmission(Constant(0.05), kBoard)[1000], 30.263449509851945, 1e-11);
  // sigma 0.8: X = 256 times as much.
  EXPECT_NEAR(SeaLeafTransmission(Constant(0.8), kBoard)[1000], 14.485106263179556, 1e-11);
}

TEST(SeaLeafTransmission, StaysBetweenZeroAndFieldIncidence) {
  for (const double sigma : {0.0, 0.01, 0.3, 1.0}) {
    const HzSpectrum r = SeaLeafTransmission(Constant(sigma), kBoard);
    EXPECT_EQ(r[0], 0.0);
    for (std::size_t f = 1; f <= kHighestHz; ++f) {
      ASSERT_GE(r[f], 0.0);
      ASSERT_LE(r[f], std::max(0.0, NormalIncidence(9.0, static_cast<double>(f)) - 5.0) + 1e-12);
    }
  }
}

TEST(SeaLeafTransmission, IsHeldAtTheCeilingAndAtTheFloor) {
  // A leaf that hardly radiates: mass path 10 lg(81 * 6283.2² / (1810.644 * 1422.08)) = 30.94 dB at 1000 Hz,
  // ceiling 30.91 dB.
  EXPECT_NEAR(SeaLeafTransmission(Constant(0.0), kBoard)[1000], NormalIncidence(9.0, 1000.0) - 5.0, 1e-12);
  EXPECT_EQ(SeaLeafTransmission(Constant(0.8), kBoard)[5], 0.0);
}

TEST(SeaLeafTransmission, RisesWithTheLossFactor) {
  SeaLeaf damped = kBoard;
  damped.loss_factor = 0.1;
  const HzSpectrum r = SeaLeafTransmission(Constant(0.8), kBoard);
  const HzSpectrum more = SeaLeafTransmission(Constant(0.8), damped);
  ASSERT_GT(r[1000], 0.0);
  for (std::size_t f = 1000; f <= kHighestHz; ++f) ASSERT_GT(more[f], r[f]);
}

TEST(SeaLeafTransmission, TakesALeafWithoutInternalLosses) {
  SeaLeaf lossless = kBoard;
  lossless.loss_factor = 0.0;
  EXPECT_GT(SeaLeafTransmission(Constant(0.05), lossless)[1000], 0.0);
}

class NoLeaf : public testing::TestWithParam<SeaLeaf> {};

TEST_P(NoLeaf, Fails) { EXPECT_THROW(SeaLeafTransmission(Constant(0.5), GetParam()), ArithmeticFailure); }
INSTANTIATE_TEST_SUITE_P(Leaves, NoLeaf,
                         testing::Values(SeaLeaf{}, SeaLeaf{2000, 0, 0.01, 0.02}, SeaLeaf{2000, 9, 0, 0.02},
                                         SeaLeaf{0, 9, 0.01, 0.02}, SeaLeaf{2000, 9, 0.01, -0.5},
                                         SeaLeaf{2000, 9, 0.01, std::numeric_limits<double>::quiet_NaN()}));

}  // namespace
}  // namespace velmar::models
