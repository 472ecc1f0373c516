#include "calculation/edits/layer_edits.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::LayerGroup;
using elements::SeaCavityType;

constexpr LayerGroup kAllGroups[] = {LayerGroup::kLeaf1,         LayerGroup::kLeaf2,
                                     LayerGroup::kSeaLeaf1,      LayerGroup::kSeaLeaf2,
                                     LayerGroup::kSeaDamping1,   LayerGroup::kSeaDamping2,
                                     LayerGroup::kSeaCavityMass, LayerGroup::kSeaCavityDamping,
                                     LayerGroup::kCavity,        LayerGroup::kSeaCavityFibre,
                                     LayerGroup::kResilient};

/// Every table knows one material, 40 mm thick.
elements::MaterialLookup OneOfEach() {
  const auto only = [](auto record) {
    record.values.name = "Prova";
    record.values.thickness_mm = 40.0;
    record.values.density_kg_m3 = 100.0;
    return [record](std::string_view name) { return name == "Prova" ? std::optional(record) : std::nullopt; };
  };
  return {.structural = only(elements::StructuralRecord()),
          .fibrous = only(elements::FibrousRecord()),
          .resilient = only(elements::ResilientRecord())};
}

class LayersOfAGroup : public testing::TestWithParam<LayerGroup> {};

TEST_P(LayersOfAGroup, TakeAMaterialInEveryRow) {
  for (int row = 0; row < RowOf(GetParam()).capacity; ++row) {
    elements::Setup setup;
    EXPECT_TRUE(PutMaterial(setup, GetParam(), row, "Prova", OneOfEach()));
    const LayerText shown = LayerTextOf(setup, GetParam(), row);
    EXPECT_EQ(shown.listed, "Prova");
    EXPECT_EQ(shown.thickness_text, "40");
    EXPECT_EQ(shown.slot_thickness_mm, 40.0);
  }
}

TEST_P(LayersOfAGroup, StayAsTheyAreForAnUnknownMaterial) {
  elements::Setup setup;
  EXPECT_FALSE(PutMaterial(setup, GetParam(), 0, "Criptonite", OneOfEach()));
  EXPECT_EQ(setup, elements::Setup());
}

TEST_P(LayersOfAGroup, TakeAThicknessAboveNought) {
  elements::Setup setup;
  EnterLayerThickness(setup, GetParam(), 0, "12.5");
  EXPECT_EQ(LayerTextOf(setup, GetParam(), 0).slot_thickness_mm, 12.5);
  EnterLayerThickness(setup, GetParam(), 0, "");
  EXPECT_EQ(LayerTextOf(setup, GetParam(), 0).slot_thickness_mm, 12.5);
  EnterLayerThickness(setup, GetParam(), 0, "1E1");
  EXPECT_EQ(LayerTextOf(setup, GetParam(), 0).slot_thickness_mm, 10.0);
}

TEST_P(LayersOfAGroup, CountTheirSheetsFromOneToTen) {
  const std::pair<const char*, int> entries[] = {{"3", 3},   {"", 1},     {"0", 1}, {"10", 10},
                                                 {"15", 10}, {"120", 10}, {"x", 1}};
  for (const auto& [text, sheets] : entries) {
    elements::Setup setup;
    EnterMultiplicity(setup, GetParam(), 0, text);
    EXPECT_EQ(LayerTextOf(setup, GetParam(), 0).multiplicity, sheets) << text;
  }
}

TEST_P(LayersOfAGroup, EndWithItsRows) {
  elements::Setup setup;
  EXPECT_THROW(LayerTextOf(setup, GetParam(), RowOf(GetParam()).capacity), std::out_of_range);
  EXPECT_THROW(EnterMultiplicity(setup, GetParam(), RowOf(GetParam()).capacity, "2"), std::out_of_range);
}

INSTANTIATE_TEST_SUITE_P(All, LayersOfAGroup, testing::ValuesIn(kAllGroups));

TEST(LayerEdits, RaiseACavityToItsLayers) {
  elements::Setup setup;
  setup.cavity.kind = elements::CavityKind::kGenericMaterial;
  setup.cavity.layers.count = 1;
  EnterLayerThickness(setup, LayerGroup::kCavity, 0, "80");
  EXPECT_EQ(setup.cavity.depth_text, "80");
  EnterMultiplicity(setup, LayerGroup::kCavity, 0, "2");
  EXPECT_EQ(setup.cavity.depth_text, "160");
  EXPECT_TRUE(PutMaterial(setup, LayerGroup::kCavity, 0, "Prova", OneOfEach()));
  EXPECT_EQ(setup.cavity.depth_text, "160") << "a cavity is never made thinner";
}

TEST(LayerEdits, RaiseASeaCavityToItsContents) {
  elements::Setup setup;
  ChooseSeaCavityType(setup, SeaCavityType::kFibreMass);
  EnterLayerThickness(setup, LayerGroup::kSeaCavityFibre, 0, "50");
  EnterLayerThickness(setup, LayerGroup::kSeaCavityMass, 0, "12,5");
  EXPECT_EQ(setup.sea_cavity.depth_text, "62") << "a whole number, ties to even";
  EnterLayerThickness(setup, LayerGroup::kSeaCavityDamping, 0, "5");
  EXPECT_EQ(setup.sea_cavity.depth_text, "62") << "not there until it is ticked";
  TickDamping(setup, LayerGroup::kSeaCavityDamping, 0, true);
  EXPECT_EQ(setup.sea_cavity.depth_text, "68");
  ChooseSeaCavityType(setup, SeaCavityType::kEmpty);
  EXPECT_EQ(setup.sea_cavity.depth_text, "68");
}

TEST(Damping, StandsInItsThreeGroupsAlone) {
  for (const LayerGroup group : kAllGroups) {
    elements::Setup setup;
    const bool damping = group == LayerGroup::kSeaDamping1 || group == LayerGroup::kSeaDamping2 ||
                         group == LayerGroup::kSeaCavityDamping;
    if (!damping) {
      EXPECT_THROW(TickDamping(setup, group, 0, true), std::out_of_range);
      continue;
    }
    TickDamping(setup, group, 1, true);
    EXPECT_TRUE(DampingOf(setup, group, 1).ticked);
    EXPECT_FALSE(DampingOf(setup, group, 0).ticked);
    EXPECT_THROW(DampingOf(setup, group, RowOf(group).capacity), std::out_of_range);
  }
}

}  // namespace
}  // namespace velmar::calculation
