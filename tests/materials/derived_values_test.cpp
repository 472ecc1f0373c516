#include "materials/derived_values.h"

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

// The shipped solid brick.
const elements::StructuralMaterial kBrick{.name = "Mattone pieno",
                                          .thickness_mm = 120,
                                          .density_kg_m3 = 1800,
                                          .youngs_modulus_gpa = 12.6,
                                          .critical_frequency_hz = 209.5,
                                          .loss_factor = 0.01,
                                          .poissons_ratio = 0.2,
                                          .surface_mass_kg_m2 = 216};

TEST(DerivedValues, AreThoseOfTheTables) {
  EXPECT_EQ(SurfaceMassOf(kBrick), 216.0);
  EXPECT_EQ(CriticalFrequencyOf(kBrick), 209.5);
  EXPECT_EQ(CriticalFrequencyOf({}), 0.0);
}

TEST(FollowChange, MassAndFrequencyFollowDensityAndThickness) {
  elements::StructuralMaterial changed = kBrick;
  changed.thickness_mm = 240;
  FollowChange(kBrick, changed);
  EXPECT_EQ(changed.surface_mass_kg_m2, 432.0);
  EXPECT_EQ(changed.critical_frequency_hz, 104.75);
}

TEST(FollowChange, WhatWasChangedItselfOrNeverFollowedStays) {
  elements::StructuralMaterial changed = kBrick;
  changed.thickness_mm = 240;
  changed.surface_mass_kg_m2 = 400;
  changed.critical_frequency_hz = 90;
  FollowChange(kBrick, changed);
  EXPECT_EQ(changed.surface_mass_kg_m2, 400.0);
  EXPECT_EQ(changed.critical_frequency_hz, 90.0);

  elements::StructuralMaterial measured = kBrick;
  measured.critical_frequency_hz = 180;
  measured.surface_mass_kg_m2 = 220;
  changed = measured;
  changed.thickness_mm = 240;
  FollowChange(measured, changed);
  EXPECT_EQ(changed.surface_mass_kg_m2, 220.0);
  EXPECT_EQ(changed.critical_frequency_hz, 180.0);

  changed = kBrick;
  changed.loss_factor = 0.02;
  FollowChange(kBrick, changed);
  EXPECT_EQ(changed.surface_mass_kg_m2, 216.0);
  EXPECT_EQ(changed.critical_frequency_hz, 209.5);
}

}  // namespace
}  // namespace velmar::materials
