#include "calculation/edits/material_choice.h"

#include <map>

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::FibrousRecord;
using elements::LayerGroup;
using elements::ResilientRecord;
using elements::StructuralMaterial;
using elements::StructuralRecord;

StructuralRecord Brick() {
  return {.values = {.name = "Laterizio \"forato\"",
                     .description = "con malta",
                     .thickness_mm = 120,
                     .density_kg_m3 = 800,
                     .youngs_modulus_gpa = 4,
                     .critical_frequency_hz = 250,
                     .loss_factor = 0.01,
                     .poissons_ratio = 0.2,
                     .surface_mass_kg_m2 = 96,
                     .thermal_conductance_w_m2k = 3.5}};
}

FibrousRecord Wool(bool porous) {
  FibrousRecord record{.values = {.name = "Lana",
                                  .thickness_mm = 40,
                                  .density_kg_m3 = 50,
                                  .porous = porous,
                                  .youngs_modulus_gpa = 0.001,
                                  .loss_factor = 0.1,
                                  .poissons_ratio = 0.3,
                                  .flow_resistance_pa_s_m = 600}};
  record.values.absorption[4] = 0.7F;
  return record;
}

ResilientRecord Rubber() {
  return {
      .values = {.name = "Gomma", .thickness_mm = 5, .density_kg_m3 = 700, .dynamic_stiffness_mn_m3 = 30}};
}

template <typename Record>
auto Only(Record record) {
  return [record](std::string_view name) -> std::optional<Record> {
    if (name != record.values.name) return std::nullopt;
    return record;
  };
}

elements::MaterialLookup Materials(bool porous = true) {
  return {.structural = Only(Brick()), .fibrous = Only(Wool(porous)), .resilient = Only(Rubber())};
}

TEST(ChooseMaterial, FillsTheSlotAndForgetsATypedThickness) {
  elements::Setup setup;
  setup.leaf1.rows[2].thickness_text = "77";
  ASSERT_TRUE(ChooseMaterial(setup, LayerGroup::kLeaf1, 2, "Laterizio \"forato\"", Materials()));
  const auto& row = setup.leaf1.rows[2];
  EXPECT_EQ(row.thickness_text, "120");
  EXPECT_EQ(row.slot.thickness_mm, 120);
  EXPECT_EQ(row.slot.surface_mass_kg_m2, 96);
  EXPECT_EQ(row.listed, row.slot.name);
}

TEST(ChooseMaterial, OfTheFirstLeafPutsTheConductanceIntoTheSecond) {
  elements::Setup setup;
  ChooseMaterial(setup, LayerGroup::kLeaf1, 1, Brick().values.name, Materials());
  EXPECT_EQ(setup.leaf1.rows[1].slot.thermal_conductance_w_m2k, 0);
  EXPECT_EQ(setup.leaf2.rows[1].slot.thermal_conductance_w_m2k, 3.5);
}

TEST(ChooseMaterial, OfASeaGroupLeavesTheSurfaceMass) {
  elements::Setup setup;
  ChooseMaterial(setup, LayerGroup::kSeaDamping2, 5, Brick().values.name, Materials());
  EXPECT_EQ(setup.sea_leaf2.damping[5].row.slot.density_kg_m3, 800);
  EXPECT_EQ(setup.sea_leaf2.damping[5].row.slot.surface_mass_kg_m2, 0);
}

TEST(ChooseMaterial, OfTheCavityReadsWhatItsKindHas) {
  elements::Setup porous;
  ChooseMaterial(porous, LayerGroup::kCavity, 0, "Lana", Materials(true));
  EXPECT_EQ(porous.cavity.layers.rows[0].slot.flow_resistance_pa_s_m, 600);
  EXPECT_EQ(porous.cavity.layers.rows[0].slot.youngs_modulus_gpa, 0);
  elements::Setup solid;
  ChooseMaterial(solid, LayerGroup::kCavity, 0, "Lana", Materials(false));
  EXPECT_EQ(solid.cavity.layers.rows[0].slot.flow_resistance_pa_s_m, 0);
  EXPECT_EQ(solid.cavity.layers.rows[0].slot.loss_factor, 0.1);
}

TEST(ChooseMaterial, OfASeaFibreReadsAllNumbersAndTheAbsorption) {
  elements::Setup setup;
  ChooseMaterial(setup, LayerGroup::kSeaCavityFibre, 2, "Lana", Materials(false));
  const auto& slot = setup.sea_cavity.fibres[2].slot;
  EXPECT_EQ(slot.flow_resistance_pa_s_m, 600);
  EXPECT_EQ(slot.absorption[4], 0.7F);
  EXPECT_EQ(slot.absorption[5], elements::kNoAbsorption);
}

TEST(ChooseMaterial, LeavesTheSlotForAnUnknownName) {
  elements::Setup setup;
  const elements::Setup before = setup;
  EXPECT_FALSE(ChooseMaterial(setup, LayerGroup::kResilient, 0, "Sughero", Materials()));
  EXPECT_EQ(setup, before);
}

TEST(ChooseMaterial, KeepsTheSlotsNumberWhereTheTableHasNone) {
  StructuralRecord record = Brick();
  record.nulls = {&StructuralMaterial::loss_factor};
  elements::MaterialLookup materials = Materials();
  materials.structural = Only(record);
  elements::Setup setup;
  setup.leaf2.rows[0].slot.loss_factor = 0.02;
  ChooseMaterial(setup, LayerGroup::kLeaf2, 0, record.values.name, materials);
  EXPECT_EQ(setup.leaf2.rows[0].slot.loss_factor, 0.02);
}

TEST(ReloadLayers, TakesTheThicknessOfTheBoxAndOnlyRowsInUse) {
  elements::Setup setup;
  for (auto& row : setup.leaf2.rows) {
    row.listed = Brick().values.name;
    row.thickness_text = "80.5";
  }
  setup.leaf2.count = 2;
  ReloadLayers(setup, LayerGroup::kLeaf2, Materials());
  EXPECT_EQ(setup.leaf2.rows[1].slot.thickness_mm, 80.5);
  EXPECT_EQ(setup.leaf2.rows[1].slot.density_kg_m3, 800);
  EXPECT_EQ(setup.leaf2.rows[2].slot.density_kg_m3, 0);
}

TEST(ReloadLayers, OfTheSecondLeafPutsTheConductanceIntoTheFirst) {
  elements::Setup setup;
  setup.leaf2.rows[0].listed = Brick().values.name;
  ReloadLayers(setup, LayerGroup::kLeaf2, Materials());
  EXPECT_EQ(setup.leaf1.rows[0].slot.thermal_conductance_w_m2k, 3.5);
  EXPECT_EQ(setup.leaf2.rows[0].slot.thermal_conductance_w_m2k, 0);
}

TEST(SelectFirstMaterials, ShowsOneMaterialEverywhereAndFillsTheFirstSlots) {
  elements::Setup setup;
  const auto brick = Brick();
  const auto wool = Wool(true);
  const auto rubber = Rubber();
  SelectFirstMaterials(setup, &brick, &wool, &rubber);
  EXPECT_EQ(setup.leaf1.rows[9].listed, brick.values.name);
  EXPECT_EQ(setup.leaf1.rows[9].thickness_text, "120");
  EXPECT_EQ(setup.leaf1.rows[0].slot.density_kg_m3, 800);
  EXPECT_EQ(setup.leaf1.rows[1].slot, StructuralMaterial{});
  EXPECT_EQ(setup.sea_cavity.masses[1].slot.density_kg_m3, 800);
  EXPECT_EQ(setup.cavity.layers.rows[6].slot.density_kg_m3, 50);
  EXPECT_EQ(setup.resilient.rows[9].slot.dynamic_stiffness_mn_m3, 30);
}

TEST(SelectFirstMaterials, LeavesTheFirstSeaLayerWithoutPoissonsRatio) {
  elements::Setup setup;
  const auto brick = Brick();
  SelectFirstMaterials(setup, &brick, nullptr, nullptr);
  EXPECT_EQ(setup.sea_leaf1.rows[0].slot.poissons_ratio, 0);
  EXPECT_EQ(setup.sea_leaf2.rows[0].slot.poissons_ratio, 0.2);
  EXPECT_EQ(setup.leaf1.rows[0].slot.poissons_ratio, 0.2);
  ChooseMaterial(setup, LayerGroup::kSeaLeaf1, 0, brick.values.name, Materials());
  EXPECT_EQ(setup.sea_leaf1.rows[0].slot.poissons_ratio, 0.2);
}

TEST(LoadRowsInUse, FillsARowThatCameIntoUseAndKeepsItsThickness) {
  elements::Setup setup;
  const StructuralRecord brick = Brick();
  SelectFirstMaterials(setup, &brick, nullptr, nullptr);
  setup.leaf1.count = 2;
  setup.leaf1.rows[1].thickness_text = "75";
  LoadRowsInUse(setup, Materials());
  EXPECT_EQ(setup.leaf1.rows[1].slot.name, brick.values.name);
  EXPECT_EQ(setup.leaf1.rows[1].slot.density_kg_m3, 800);
  EXPECT_EQ(setup.leaf1.rows[1].slot.thickness_mm, 75);
  EXPECT_TRUE(setup.leaf1.rows[2].slot.name.empty()) << "not in use";
}

TEST(LoadRowsInUse, PassesOverDampingThatIsNotTicked) {
  elements::Setup setup;
  const StructuralRecord brick = Brick();
  SelectFirstMaterials(setup, &brick, nullptr, nullptr);
  setup.sea_leaf1.damping[1].ticked = true;
  LoadRowsInUse(setup, Materials());
  EXPECT_EQ(setup.sea_leaf1.damping[1].row.slot.density_kg_m3, 800);
  setup.sea_leaf1.damping[0].row.slot = {};
  LoadRowsInUse(setup, Materials());
  EXPECT_TRUE(setup.sea_leaf1.damping[0].row.slot.name.empty());
}

TEST(LoadRowsInUse, EmptiesARowWhoseMaterialIsGone) {
  elements::Setup setup;
  const StructuralRecord brick = Brick();
  SelectFirstMaterials(setup, &brick, nullptr, nullptr);
  setup.leaf1.count = 2;
  setup.leaf1.rows[1].listed = "Sparito";
  LoadRowsInUse(setup, Materials());
  EXPECT_EQ(setup.leaf1.rows[1], elements::LayerRow<StructuralMaterial>());
  EXPECT_EQ(setup.leaf1.rows[0].slot.name, brick.values.name) << "what is loaded stays";
}

}  // namespace
}  // namespace velmar::calculation
