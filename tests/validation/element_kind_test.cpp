#include "validation/element_kind.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/validation/shipped_measurements.h"

namespace velmar::validation {
namespace {

TEST(ElementKind, EverySetUpIsOfAKindThatItsConstructionMayBelongTo) {
  for (const auto& construction : ShippedMeasurements().constructions) {
    for (const auto& measured : construction.setups) {
      const ElementKindRow& row = RowOf(KindOf(measured.setup));
      EXPECT_NE(std::ranges::find(row.groups, measured.group), row.groups.end())
          << construction.id << " is \"" << measured.group << "\", its set-up for "
          << elements::RowOf(*measured.setup.calculation).variant << " reads as \"" << row.id << '"';
    }
  }
}

TEST(ElementKind, AKnownFrameNamesTheGroupOfBoards) {
  for (const auto& construction : ShippedMeasurements().constructions) {
    if (construction.frame == elements::Frame::kNone) continue;
    for (const auto& measured : construction.setups) {
      EXPECT_EQ(RowOf(KindOf(measured.setup, construction.frame)).id, measured.group) << construction.id;
    }
  }
}

elements::Setup Wall(elements::Calculation calculation, double thickness_mm, double density, double modulus) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.leaf1.rows[0].slot.thickness_mm = thickness_mm;
  setup.leaf1.rows[0].slot.density_kg_m3 = density;
  setup.leaf1.rows[0].slot.youngs_modulus_gpa = modulus;
  return setup;
}

TEST(ElementKind, TheNameOfAMaterialSaysNothing) {
  elements::Setup wall = Wall(elements::Calculation::kSingleWallGeneric, 120, 1800, 12.6);
  wall.leaf1.rows[0].slot.name = "Calcestruzzo aerato";
  EXPECT_EQ(KindOf(wall), ElementKind::kBrickAndClay);
}

TEST(ElementKind, WhatWasNeverMeasuredIsOfNoKind) {
  EXPECT_EQ(KindOf({}), ElementKind::kOther);
  EXPECT_EQ(KindOf(Wall(elements::Calculation::kSingleWallGeneric, 0, 1800, 12.6)), ElementKind::kOther);
  EXPECT_EQ(KindOf(Wall(elements::Calculation::kSingleWallGeneric, 300, 120, 0.01)), ElementKind::kOther);
  elements::Setup heavy_and_light = Wall(elements::Calculation::kDoubleWallGeneric, 120, 1800, 12.6);
  heavy_and_light.leaf2.rows[0].slot = {
      .thickness_mm = 12.5, .density_kg_m3 = 850, .youngs_modulus_gpa = 4.1};
  EXPECT_EQ(KindOf(heavy_and_light), ElementKind::kOther);
  heavy_and_light.leaf2.rows[0].slot = heavy_and_light.leaf1.rows[0].slot;
  EXPECT_EQ(KindOf(heavy_and_light), ElementKind::kMasonryCavityWall);
  elements::Setup facade;
  facade.calculation = elements::Calculation::kCompositeElement;
  EXPECT_EQ(KindOf(facade), ElementKind::kOther);
}

TEST(ElementKind, IdsAreDifferent) {
  for (const ElementKindRow& row : ElementKinds()) {
    EXPECT_EQ(std::ranges::count(ElementKinds(), row.id, &ElementKindRow::id), 1) << row.id;
  }
}

}  // namespace
}  // namespace velmar::validation
