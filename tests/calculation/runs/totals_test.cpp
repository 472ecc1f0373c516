#include "calculation/runs/totals.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::Calculation;

template <typename Material>
elements::LayerRow<Material> Row(double thickness_mm, double density_kg_m3, int multiplicity = 1) {
  elements::LayerRow<Material> row;
  row.multiplicity = multiplicity;
  row.slot.thickness_mm = thickness_mm;
  row.slot.density_kg_m3 = density_kg_m3;
  return row;
}

auto Solid(double thickness_mm, double density_kg_m3, int multiplicity = 1) {
  return Row<elements::StructuralMaterial>(thickness_mm, density_kg_m3, multiplicity);
}

elements::Setup Of(Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.cavity.depth_text = "50";
  setup.leaf1.rows[0] = Solid(15, 1000);
  setup.leaf2.rows[0] = Solid(10, 900);
  setup.sea_leaf1.rows[0] = Solid(12.5, 800);
  setup.sea_leaf2.rows[0] = Solid(20, 700);
  return setup;
}

TEST(Totals, OfNothingChosenAreZero) { EXPECT_EQ(ComputeTotals({}), Totals{}); }

TEST(Totals, CountEqualSheetsByTheirNumber) {
  elements::Setup setup = Of(Calculation::kSingleWallPlasterboard);
  setup.leaf1.rows[0] = Solid(12.5, 900, 2);
  EXPECT_EQ(ComputeTotals(setup), (Totals{25, 22.5}));
}

TEST(Totals, IgnoreRowsThatAreNotInUse) {
  elements::Setup setup = Of(Calculation::kSingleWallGeneric);
  setup.leaf1.rows[1] = Solid(120, 800);
  EXPECT_EQ(ComputeTotals(setup), (Totals{15, 15}));
  setup.leaf1.count = 2;
  EXPECT_EQ(ComputeTotals(setup), (Totals{135, 111}));
}

TEST(Totals, RoundTheMassAfterEachAddition) {
  elements::Setup setup = Of(Calculation::kSingleWallGeneric);
  setup.leaf1.count = 3;
  for (std::size_t i = 0; i < 3; ++i) setup.leaf1.rows[i] = Solid(1, 0.14);
  // 0.00014 rounds to 0.0001, 0.00024 to 0.0002, 0.00034 to 0.0003; at once it would be 0.0004.
  EXPECT_DOUBLE_EQ(ComputeTotals(setup).surface_mass_kg_m2, 0.0003);
}

TEST(Totals, OfADoubleWallTakeLeavesAndCavityDepth) {
  EXPECT_EQ(ComputeTotals(Of(Calculation::kDoubleWallGeneric)), (Totals{75, 24}));
}

TEST(Totals, OfAGenericCavityAddTheMassOfEachRowAndTheDepthOnce) {
  elements::Setup setup = Of(Calculation::kDoubleWallGeneric);
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  setup.cavity.layers.count = 2;
  setup.cavity.layers.rows[0] = Row<elements::FibrousMaterial>(30, 100);
  setup.cavity.layers.rows[1] = Row<elements::FibrousMaterial>(10, 1000, 2);
  EXPECT_EQ(ComputeTotals(setup), (Totals{75, 24 + 3 + 20}));
  setup.cavity.layers.count = 8;  // as typed: seven rows exist
  EXPECT_EQ(ComputeTotals(setup), (Totals{75, 24 + 3 + 20}));
}

TEST(Totals, OfASingleSeaWallReadTheSeaStackWithItsDamping) {
  elements::Setup setup = Of(Calculation::kSingleWallSea);
  setup.sea_leaf1.damping[0] = {.ticked = true, .row = Solid(2, 1500)};
  setup.sea_leaf1.damping[1] = {.ticked = false, .row = Solid(2, 1500)};
  setup.sea_leaf1.damping[2] = {.ticked = true, .row = Solid(2, 1500)};  // of a layer that is not in use
  EXPECT_EQ(ComputeTotals(setup), (Totals{14.5, 13}));
}

TEST(Totals, OfADoubleSeaWallCountDepthOnceAndFillsByMass) {
  elements::Setup setup = Of(Calculation::kDoubleWallSeaBrick);
  setup.sea_cavity.type = elements::SeaCavityType::kFibreMass;
  setup.sea_cavity.depth_text = "60";
  setup.sea_cavity.fibres[0] = Row<elements::FibrousMaterial>(40, 50);
  setup.sea_cavity.fibres[1] = Row<elements::FibrousMaterial>(40, 50);  // not shown by this type
  setup.sea_cavity.masses[0] = Solid(10, 800);
  setup.sea_cavity.mass_damping[0] = {.ticked = true, .row = Solid(2, 1000)};
  EXPECT_EQ(ComputeTotals(setup), (Totals{12.5 + 20 + 60, 10 + 14 + 2 + 8 + 2}));
}

TEST(Totals, OfALiningStandOnTheBase) {
  elements::Setup setup = Of(Calculation::kLiningCalibel);
  setup.base.mass_kg_m2 = 240.5F;  // ties to the even whole
  setup.sea_cavity.depth_text = "50";
  EXPECT_EQ(ComputeTotals(setup), (Totals{200 + 20 + 50, 240 + 14}));
  setup.base.thickness_mm = 300;
  EXPECT_EQ(ComputeTotals(setup).thickness_mm, 370);
}

TEST(Totals, OfAFloorAddTheResilientRows) {
  elements::Setup setup = Of(Calculation::kImpactFloatingFloor);
  setup.resilient.rows[0] = Row<elements::ResilientMaterial>(5, 30, 2);
  EXPECT_EQ(ComputeTotals(setup), (Totals{35, 24.3}));
  setup.resilient.count = 0;
  EXPECT_EQ(ComputeTotals(setup), (Totals{25, 24}));
}

TEST(Totals, OfAFacadeAreZero) { EXPECT_EQ(ComputeTotals(Of(Calculation::kCompositeElement)), Totals{}); }

}  // namespace
}  // namespace velmar::calculation
