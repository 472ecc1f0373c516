#include "calculation/edits/cavity_rules.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::CavityKind;

elements::Setup DoubleWall(CavityKind kind, const char* depth,
                           Calculation calculation = Calculation::kDoubleWallBrickTorvalle) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.cavity.kind = kind;
  setup.cavity.depth_text = depth;
  setup.cavity.layers.count = 2;
  setup.cavity.layers.rows[0].slot.thickness_mm = 20;
  setup.cavity.layers.rows[0].multiplicity = 2;
  setup.cavity.layers.rows[1].slot.thickness_mm = 15.5;
  return setup;
}

TEST(LeaveCavityDepth, ReplacesWhatIsNoDepthAndSaysSo) {
  for (const char* depth : {"", "0", "-5", "abc"}) {
    elements::Setup setup = DoubleWall(CavityKind::kEmpty, depth);
    EXPECT_TRUE(LeaveCavityDepth(setup)) << depth;
    EXPECT_EQ(setup.cavity.depth_text, "10") << depth;
  }
  elements::Setup setup = DoubleWall(CavityKind::kEmpty, "40,5");
  EXPECT_FALSE(LeaveCavityDepth(setup));
  EXPECT_EQ(setup.cavity.depth_text, "40,5");
}

TEST(LeaveCavityDepth, IsNeverBelowTheFibre) {
  elements::Setup setup = DoubleWall(CavityKind::kFibrous, "40");
  setup.cavity.fibre_text = "60";
  LeaveCavityDepth(setup);
  EXPECT_EQ(setup.cavity.depth_text, "60");
  setup.cavity.fibre_text.clear();
  LeaveCavityDepth(setup);
  EXPECT_EQ(setup.cavity.fibre_text, "0");
  EXPECT_EQ(setup.cavity.depth_text, "60");
}

TEST(LeaveCavityDepth, LeavesTheFibreAloneWhereNoRelationReadsIt) {
  elements::Setup setup = DoubleWall(CavityKind::kFibrous, "40", Calculation::kDoubleWallBrick);
  setup.cavity.fibre_text = "60";
  LeaveCavityDepth(setup);
  EXPECT_EQ(setup.cavity.depth_text, "40");
}

TEST(LeaveCavityDepth, IsNeverBelowTheGenericLayers) {
  elements::Setup setup = DoubleWall(CavityKind::kGenericMaterial, "40");
  LeaveCavityDepth(setup);
  EXPECT_EQ(setup.cavity.depth_text, "55,5");
}

TEST(EnterFibreThickness, RaisesTheDepthAtOnce) {
  elements::Setup setup = DoubleWall(CavityKind::kFibrous, "40");
  EnterFibreThickness(setup, "50");
  EXPECT_EQ(setup.cavity.depth_text, "50");
  EnterFibreThickness(setup, "30");
  EXPECT_EQ(setup.cavity.depth_text, "50");
}

TEST(EnterCavityLayerThickness, StoresAndRaises) {
  elements::Setup setup = DoubleWall(CavityKind::kGenericMaterial, "60");
  EnterCavityLayerThickness(setup, 1, "30");
  EXPECT_EQ(setup.cavity.layers.rows[1].slot.thickness_mm, 30);
  EXPECT_EQ(setup.cavity.depth_text, "70");
  EnterCavityLayerThickness(setup, 1, ",");
  EXPECT_EQ(setup.cavity.layers.rows[1].slot.thickness_mm, 30);
}

TEST(ChooseCavityKind, ClearsTheFibreAndFitsTheDepth) {
  elements::Setup setup = DoubleWall(CavityKind::kFibrous, "40");
  setup.cavity.fibre_text = "30";
  ChooseCavityKind(setup, CavityKind::kGenericMaterial);
  EXPECT_EQ(setup.cavity.depth_text, "55,5");
  EXPECT_EQ(setup.cavity.fibre_text, "30");
  ChooseCavityKind(setup, CavityKind::kEmpty);
  EXPECT_EQ(setup.cavity.fibre_text, "0");
}

elements::Setup SeaWall(const char* depth) {
  elements::Setup setup;
  setup.calculation = Calculation::kDoubleWallSeaBrick;
  setup.sea_cavity.type = elements::SeaCavityType::kFibreMass;
  setup.sea_cavity.depth_text = depth;
  setup.sea_cavity.fibres[0].slot.thickness_mm = 40;
  setup.sea_cavity.fibres[1].slot.thickness_mm = 1000;  // not shown by this type
  setup.sea_cavity.masses[0].slot.thickness_mm = 12.5;
  setup.sea_cavity.mass_damping[0] = {.ticked = true, .row = {.slot = {.thickness_mm = 2}}};
  return setup;
}

TEST(SeaCavityDepth, SumsWhatIsShown) {
  elements::Setup setup = SeaWall("60");
  EXPECT_EQ(CavityContentThickness(setup.sea_cavity), 54.5);
  setup.sea_cavity.mass_damping[0].ticked = false;
  EXPECT_EQ(CavityContentThickness(setup.sea_cavity), 52.5);
}

TEST(SeaCavityDepth, IsRaisedToAWholeNumberWhenLeftAndToTheSumBeforeARun) {
  for (const char* depth : {"", "50"}) {
    elements::Setup setup = SeaWall(depth);
    LeaveSeaCavityDepth(setup);
    EXPECT_EQ(setup.sea_cavity.depth_text, "54");
    RaiseSeaCavityDepth(setup);
    EXPECT_EQ(setup.sea_cavity.depth_text, "54,5");
  }
  elements::Setup setup = SeaWall("80");
  LeaveSeaCavityDepth(setup);
  RaiseSeaCavityDepth(setup);
  EXPECT_EQ(setup.sea_cavity.depth_text, "80");
}

TEST(SeaCavityDepth, OfAnEmptyCavityStaysEmptyBeforeARun) {
  elements::Setup setup;
  RaiseSeaCavityDepth(setup);
  EXPECT_EQ(setup.sea_cavity.depth_text, "");
  LeaveSeaCavityDepth(setup);
  EXPECT_EQ(setup.sea_cavity.depth_text, "0");
}

TEST(ChooseCavityKind, OfTheOneThatIsChosenChangesNothing) {
  elements::Setup setup;
  setup.cavity.kind = CavityKind::kFibrous;
  setup.cavity.fibre_text = "60";
  const elements::Setup before = setup;
  ChooseCavityKind(setup, CavityKind::kFibrous);
  EXPECT_EQ(setup, before);
}

}  // namespace
}  // namespace velmar::calculation
