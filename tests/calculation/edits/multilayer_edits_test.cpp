#include "calculation/edits/multilayer_edits.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calculation/edits/layer_edits.h"
#include "calculation/edits/material_choice.h"
#include "calculation/open/history.h"
#include "elements/layer_groups.h"

namespace velmar::calculation {
namespace {

using elements::CavityConnection;
using elements::Stratum;
using elements::StratumKind;
using testing::ElementsAre;

/// "A" board, "w" wool, "a" air, "B" board; steel studs at 40 cm from the wool on.
elements::Setup StudWall() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kMultilayerGeneric;
  auto& strata = setup.multilayer.strata;
  setup.multilayer.count = 4;
  strata[0].solid.slot.name = "A";
  strata[1].kind = StratumKind::kFibre;
  strata[1].fibre.slot.name = "w";
  strata[1].connection = CavityConnection::kSteelStuds;
  strata[1].connection_text = "40";
  strata[2].kind = StratumKind::kAir;
  strata[2].thickness_text = "15";
  strata[3].solid.slot.name = "B";
  strata[4].solid.slot.name = "C";
  return setup;
}

std::vector<std::string> Told(const elements::Setup& setup) {
  std::vector<std::string> told;
  for (int i = 0; i < setup.multilayer.Count(); ++i) {
    const Stratum& row = setup.multilayer.strata.at(static_cast<std::size_t>(i));
    std::string text = row.kind == StratumKind::kAir     ? "air " + row.thickness_text
                       : row.kind == StratumKind::kFibre ? row.fibre.slot.name
                                                         : row.solid.slot.name;
    if (setup.multilayer.BeginsCavity(i) && row.connection != CavityConnection::kNone)
      text += " studs " + row.connection_text;
    told.push_back(std::move(text));
  }
  return told;
}

TEST(MultilayerEdits, InsertAirBesideALeafAndAPlateBesideAFill) {
  elements::Setup setup = StudWall();
  EXPECT_TRUE(InsertStratum(setup, 4));
  EXPECT_THAT(Told(setup), ElementsAre("A", "w studs 40", "air 15", "B", "air 50"));
  EXPECT_TRUE(InsertStratum(setup, 5));
  EXPECT_EQ(setup.multilayer.strata[5].kind, StratumKind::kPlate);
  EXPECT_FALSE(InsertStratum(setup, 7));
  EXPECT_FALSE(InsertStratum(setup, -1));
}

TEST(MultilayerEdits, KeepTheStudsOfACavityWhoseFirstRowIsAnother) {
  elements::Setup setup = StudWall();
  EXPECT_TRUE(InsertStratum(setup, 1));
  EXPECT_THAT(Told(setup), ElementsAre("A", "air 50 studs 40", "w", "air 15", "B"));
  EXPECT_TRUE(RemoveStratum(setup, 1));
  EXPECT_TRUE(RemoveStratum(setup, 1));
  EXPECT_THAT(Told(setup), ElementsAre("A", "air 15 studs 40", "B"));
  setup = StudWall();
  EXPECT_TRUE(MoveStratum(setup, 2, 1));
  EXPECT_THAT(Told(setup), ElementsAre("A", "air 15 studs 40", "w", "B"));
  ChooseStratumKind(setup, 1, StratumKind::kPlate);
  EXPECT_THAT(Told(setup), ElementsAre("A", "", "w studs 40", "B"));
  ChooseStratumKind(setup, 1, StratumKind::kFibre);
  EXPECT_THAT(Told(setup), ElementsAre("A", " studs 40", "w", "B"));
}

TEST(MultilayerEdits, PartACavityIntoTwoThatAreHeldAsItWas) {
  elements::Setup setup = StudWall();
  EXPECT_TRUE(InsertStratum(setup, 2));
  ChooseStratumKind(setup, 2, StratumKind::kPlate);
  EXPECT_THAT(Told(setup), ElementsAre("A", "w studs 40", "C", "air 15 studs 40", "B"));
}

TEST(MultilayerEdits, MoveRowsUpAndDown) {
  elements::Setup setup = StudWall();
  EXPECT_TRUE(MoveStratum(setup, 0, 3));
  EXPECT_THAT(Told(setup), ElementsAre("w studs 40", "air 15", "B", "A"));
  EXPECT_TRUE(MoveStratum(setup, 3, 0));
  EXPECT_THAT(Told(setup), ElementsAre("A", "w studs 40", "air 15", "B"));
  EXPECT_FALSE(MoveStratum(setup, 3, 4));
  EXPECT_FALSE(MoveStratum(setup, -1, 0));
}

TEST(MultilayerEdits, StopAtOneRowAndAtSixteen) {
  elements::Setup setup = StudWall();
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(RemoveStratum(setup, 0));
  EXPECT_FALSE(RemoveStratum(setup, 0));
  EXPECT_THAT(Told(setup), ElementsAre("B"));
  while (DuplicateStratum(setup, 0)) {
  }
  EXPECT_EQ(setup.multilayer.count, 16);
  EXPECT_FALSE(InsertStratum(setup, 0));
  EXPECT_THAT(Told(setup), testing::Each("B"));
}

TEST(MultilayerEdits, NameTheirSteps) {
  const elements::Setup before = StudWall();
  const auto step = [&](auto change) {
    elements::Setup after = before;
    change(after);
    return StepBetween(before, after).value();
  };
  EXPECT_EQ(step([](elements::Setup& setup) { InsertStratum(setup, 1); }).kind, StepKind::kCount);
  const Step kind = step([](elements::Setup& setup) { ChooseStratumKind(setup, 0, StratumKind::kAir); });
  EXPECT_EQ(kind.field.field, elements::Field::kStratumKind);
  const Step gap = step([](elements::Setup& setup) { setup.multilayer.strata[2].thickness_text = "1"; });
  EXPECT_EQ(gap.field.field, elements::Field::kStratumThickness);
  EXPECT_EQ(gap.field.index, 2);
  EXPECT_EQ(step([](elements::Setup& setup) { setup.multilayer.framed = true; }).field.field,
            elements::Field::kTracks);
}

// The table's Rs belongs to the table's thickness: a thicker fill of the same wool is as dense to the flow.
TEST(MultilayerEdits, TakeTheFlowResistivityOfTheMaterialWhateverItsThickness) {
  elements::FibrousRecord wool;
  wool.values = {
      .name = "Lana", .thickness_mm = 60, .density_kg_m3 = 40, .porous = true, .flow_resistance_pa_s_m = 840};
  elements::MaterialLookup materials;
  materials.fibrous = [&](const std::string_view name) {
    return name == "Lana" ? std::optional(wool) : std::nullopt;
  };
  elements::Setup setup = StudWall();
  ASSERT_TRUE(ChooseMaterial(setup, elements::LayerGroup::kStratumFibre, 1, "Lana", materials));
  EXPECT_NEAR(setup.multilayer.strata[1].flow_resistivity_pa_s_m2, 14000.0, 1e-9);
  EnterLayerThickness(setup, elements::LayerGroup::kStratumFibre, 1, "120");
  EXPECT_NEAR(setup.multilayer.strata[1].flow_resistivity_pa_s_m2, 14000.0, 1e-9);
}

}  // namespace
}  // namespace velmar::calculation
