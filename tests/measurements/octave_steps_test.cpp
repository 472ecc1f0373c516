#include "measurements/octave_steps.h"

#include <cmath>

#include <gtest/gtest.h>

#include "storage/library/library_store.h"

namespace velmar::measurements {
namespace {

storage::MeasuredTest OctaveTest() {
  storage::MeasuredTest test;
  test.octaves = {18, 20, 26, 33, 40, 45, 50, 52};
  return test;
}

TEST(OctaveStepsTest, TheThirdsOfAnOctaveHaveItsValue) {
  const auto steps = OctaveSteps(OctaveTest());
  EXPECT_EQ(steps[0], 18);   // 50 Hz
  EXPECT_EQ(steps[2], 18);   // 80 Hz
  EXPECT_EQ(steps[3], 20);   // 100 Hz
  EXPECT_EQ(steps[17], 45);  // 2500 Hz
  EXPECT_EQ(steps[18], 50);  // 3150 Hz
  EXPECT_EQ(steps[20], 50);  // 5000 Hz
}

TEST(OctaveStepsTest, TheEnergyMeanOverTheThirdsIsTheOctaveAgain) {
  const auto thirds = ThirdsFromOctaves(*storage::FindLibraryFolder("Rw"), OctaveTest());
  ASSERT_TRUE(thirds);
  double transmitted = 0.0;
  for (std::size_t band = 3; band < 6; ++band) transmitted += std::pow(10.0, -*(*thirds)[band] / 10.0) / 3.0;
  EXPECT_NEAR(-10.0 * std::log10(transmitted), 20.0, 1e-9);
}

TEST(OctaveStepsTest, WhatCannotBeDerivedIsNot) {
  const storage::LibraryFolder walls = *storage::FindLibraryFolder("Rw");
  storage::MeasuredTest test = OctaveTest();
  EXPECT_FALSE(ThirdsFromOctaves(*storage::FindLibraryFolder("Lnw"), test)) << "an octave of Ln is a sum";
  test.octaves[6].reset();
  EXPECT_FALSE(ThirdsFromOctaves(walls, test)) << "3150 Hz lies in the octave of 4000 Hz";
  test = OctaveTest();
  test.bands[10] = 30;
  EXPECT_FALSE(ThirdsFromOctaves(walls, test)) << "measured thirds are not replaced";
}

}  // namespace
}  // namespace velmar::measurements
