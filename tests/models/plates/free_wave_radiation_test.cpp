#include "models/plates/free_wave_radiation.h"

#include <cmath>

#include <gtest/gtest.h>

namespace velmar::models {
namespace {

constexpr double kStandardSpeed = 340.0;
const PlateDimensions kFloor{5.0, 4.0};

TEST(FreeWaveRadiation, FollowsTheFormulasOfTheStandard) {
  // f11 = 340²/(4·400) (1/25 + 1/16) = 7.4 Hz lies below fc/2: the formula of many modes.
  EXPECT_NEAR(FreeWaveRadiation(800, 400, kFloor, kStandardSpeed), std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(FreeWaveRadiation(1600, 400, kFloor, kStandardSpeed), 1.0 / std::sqrt(0.75), 1e-12);
  EXPECT_DOUBLE_EQ(FreeWaveRadiation(400, 400, kFloor, kStandardSpeed), 2.0);
  // At fc/4 lambda is 1/2.
  const double pi = std::acos(-1.0);
  const double edges = (0.75 * std::log(3.0) + 1.0) / (4.0 * pi * pi * std::pow(0.75, 1.5));
  const double corners = 8.0 * 0.85 * 0.85 * 0.5 / (std::pow(pi, 4) * 20.0 * 0.5 * std::sqrt(0.75));
  EXPECT_NEAR(FreeWaveRadiation(100, 400, kFloor, kStandardSpeed), 0.9 * 0.85 * edges + corners, 1e-12);
}

TEST(FreeWaveRadiation, OfASmallStiffPlateIsThatOfAPiston) {
  // f11 = 340²/(4·100)·8 = 2312 Hz lies above fc/2.
  const PlateDimensions small{0.5, 0.5};
  EXPECT_NEAR(FreeWaveRadiation(50, 100, small, kStandardSpeed), 4 * 0.25 * std::pow(50 / 340.0, 2), 1e-12);
  EXPECT_NEAR(FreeWaveRadiation(1000, 100, small, kStandardSpeed), 1.0 / std::sqrt(0.9), 1e-12);
}

TEST(FreeWaveRadiation, StaysBetweenZeroAndTwo) {
  for (double fc = 20; fc < 50000; fc *= 1.37) {
    for (double f = 40; f < 6000; f *= 1.09) {
      for (const PlateDimensions& plate : {PlateDimensions{0.3, 0.2}, kFloor, PlateDimensions{20, 0.5}}) {
        const double sigma = FreeWaveRadiation(f, fc, plate, kStandardSpeed);
        ASSERT_GT(sigma, 0.0) << f << " " << fc;
        ASSERT_LE(sigma, 2.0) << f << " " << fc;
        const double forced = ForcedWaveRadiation(f, plate, kStandardSpeed);
        ASSERT_GE(forced, 0.0);
        ASSERT_LE(forced, 2.0);
      }
    }
  }
}

TEST(FreeWaveRadiation, IsFiniteBesideTheCriticalFrequency) {
  for (const double off : {-1e-9, -1e-13, 0.0, 1e-13, 1e-9}) {
    EXPECT_DOUBLE_EQ(FreeWaveRadiation(400 * (1 + off), 400, kFloor, kStandardSpeed), 2.0) << off;
  }
}

// The exact mean over a diffuse field of the radiation of a forced trace from a piston of 4 m x 2.5 m, by
// quadrature over plate and angles, at 343.2 m/s.
TEST(ForcedWaveRadiation, MeetsTheExactMeanOfADiffuseField) {
  const double table[][2] = {
      {50.119, 0.605}, {63.096, 0.721}, {79.433, 0.834}, {100, 0.946}, {158.49, 1.177}};
  for (const auto& [f, sigma] : table) {
    EXPECT_NEAR(ForcedWaveRadiation(f, {4.0, 2.5}, 343.2), sigma, 0.004) << f;
    EXPECT_DOUBLE_EQ(ForcedWaveRadiation(f, {4.0, 2.5}, 343.2), ForcedWaveRadiation(f, {2.5, 4.0}, 343.2));
  }
}

}  // namespace
}  // namespace velmar::models
