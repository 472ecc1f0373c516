#include "acoustics/octave_rating.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::acoustics {
namespace {

TEST(OctaveRating, TheReferenceCurveShiftedByTwoDecibelsUsesUpTheAllowedDeviation) {
  // Each of the five octaves 2 dB below the curve: 10.0 dB in all, which ISO 717-1 allows.
  EXPECT_EQ(RateOctaves({0, 34, 43, 50, 53, 54, 0}), 52.0);
  EXPECT_EQ(RateOctaves({0, 33.9, 43, 50, 53, 54, 0}), 51.0);
}

// Octave bands of a handbook wall: 125 mm plastered brick, Rw 45.
TEST(OctaveRating, RatesAPublishedWall) { EXPECT_EQ(RateOctaves({30, 36, 37, 40, 46, 54, 57}), 45.0); }

// Octave bands of handbook walls with the terms that their sources' bands give.
TEST(OctaveRating, TermsAreTheWeightedLevelsLessTheRating) {
  const OctaveSpectrum blocks = {35, 35, 41, 44, 50, 57, 64};
  EXPECT_EQ(RateOctaves(blocks), 49.0);
  EXPECT_EQ(FindOctaveTerms(blocks, 49.0).c, -1.0);
  EXPECT_EQ(FindOctaveTerms(blocks, 49.0).ctr, -4.0);
  const OctaveSpectrum boards = {18, 16, 33, 47, 55, 43, 47};
  EXPECT_EQ(FindOctaveTerms(boards, 40.0).c, -4.0);
  EXPECT_EQ(FindOctaveTerms(boards, 40.0).ctr, -10.0);
}

TEST(OctaveRating, OneDecibelMoreEverywhereIsOneMoreInTheRating) {
  OctaveSpectrum spectrum = {22, 28, 32, 33, 32, 32, 33};
  const double rating = RateOctaves(spectrum);
  for (double& level : spectrum) level += 1.0;
  EXPECT_EQ(RateOctaves(spectrum), rating + 1.0);
}

TEST(OctaveRating, AnOctaveIsTheMeanOfThreeTransmittedEnergies) {
  Spectrum spectrum;
  spectrum.fill(40.0);
  EXPECT_NEAR(OctavesOf(spectrum)[6], 40.0, 1e-12);
  spectrum[0] = 10.0;  // 50 Hz alone decides the octave of 63 Hz
  EXPECT_NEAR(OctavesOf(spectrum)[0], 10.0 + 10.0 * std::log10(3.0), 1e-2);
  EXPECT_NEAR(OctavesOf(spectrum)[1], 40.0, 1e-12);
}

TEST(OctaveRating, WhatIsNoLevelIsRefused) {
  EXPECT_THROW(RateOctaves({0, 30, std::numeric_limits<double>::quiet_NaN(), 30, 30, 30, 0}),
               ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::acoustics
