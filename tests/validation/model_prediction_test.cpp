#include "validation/model_prediction.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "tests/validation/shipped_measurements.h"
#include "validation/accuracy.h"
#include "validation/layered_input.h"

namespace velmar::validation {
namespace {

const Accuracy& OfAllModels() {
  static const Accuracy accuracy(PredictWithAllModels(ShippedMeasurements()).predictions);
  return accuracy;
}

double RmsOf(const std::string& group, const std::string& model) {
  const std::vector<AccuracyRow> table = OfAllModels().Table();
  const auto row = std::ranges::find_if(table, [&](const AccuracyRow& candidate) {
    return candidate.group == group && candidate.model == model;
  });
  return row == table.end() ? 99.0 : row->errors.rms;
}

TEST(LayeredPredictions, CoverTheAirborneConstructionsOnceWithTheirFrame) {
  std::set<std::string> covered;
  for (const Prediction* prediction : OfAllModels().Compared()) {
    if (prediction->model != kLayeredModel) continue;
    EXPECT_TRUE(covered.insert(prediction->measured).second) << prediction->measured;
  }
  EXPECT_EQ(covered.size(), 211U);
}

// What the model is worth on the kinds that were measured: a change for the worse is seen here.
TEST(LayeredPredictions, KeepTheirErrors) {
  EXPECT_LE(RmsOf("steel studs, direct", kLayeredModel), 2.5);
  EXPECT_LE(RmsOf("wood studs, direct", kLayeredModel), 3.1);
  EXPECT_LE(RmsOf("resilient channels", kLayeredModel), 2.6);
  EXPECT_LE(RmsOf("single pane", kLayeredModel), 2.0);
  EXPECT_LE(RmsOf("laminated pane", kLayeredModel), 2.0);
  EXPECT_LE(RmsOf("insulating unit (cavity < 35 mm)", kLayeredModel), 3.5);
  EXPECT_LE(RmsOf("double window (cavity >= 40 mm)", kLayeredModel), 3.0);
  EXPECT_LE(RmsOf("thin sheets and boards", kLayeredModel), 2.6);
  EXPECT_LE(RmsOf("concrete block", kLayeredModel), 3.5);
}

TEST(Intervals, OfAllModelsHoldWhatIsMeasured) {
  const CoverageFigures figures = OfAllModels().Coverages();
  EXPECT_GE(figures.leave_one_out.Share(), 0.85);
  EXPECT_GE(figures.leave_one_source_out.Share(), 0.85);
}

TEST(MonolithicPredictions, AreOfHeavySingleElementsAlone) {
  const PredictionOutcome outcome = PredictWithMonolithic(ShippedMeasurements());
  std::set<std::string> groups;
  for (const Prediction& prediction : outcome.predictions) groups.insert(prediction.group);
  EXPECT_EQ(groups, (std::set<std::string>{"aerated concrete", "block, unsealed (leaks)", "brick and clay",
                                           "calcium silicate", "concrete block", "dense concrete"}));
}

elements::Setup StudWall() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kLightWallLineLine;
  setup.width_text = "3,6";
  setup.height_text = "2,8";
  setup.leaf1.rows[0].slot = {
      .thickness_mm = 12.5, .density_kg_m3 = 850, .youngs_modulus_gpa = 4.1, .poissons_ratio = 0.3};
  setup.leaf2 = setup.leaf1;
  setup.leaf2.rows[0].multiplicity = 2;
  setup.cavity.kind = elements::CavityKind::kFibrous;
  setup.cavity.depth_text = "75";
  setup.cavity.fibre_text = "60";
  setup.support_distance_text = "40";
  return setup;
}

TEST(LayeredInput, TakesAStudWallAsItStands) {
  const auto element = LayeredElementOf(StudWall());
  ASSERT_TRUE(element);
  EXPECT_EQ(element->width_m, 3.6);
  EXPECT_EQ(element->height_m, 2.8);
  EXPECT_TRUE(element->framed);
  EXPECT_EQ(element->bay_width_m, 0.0);
  ASSERT_EQ(element->leaves.size(), 2U);
  const auto& second = std::get<models::LayeredPlate>(element->leaves[1]);
  EXPECT_EQ(second.layers.size(), 2U);
  EXPECT_EQ(second.joint, models::LeafJoint::kSlipping);
  EXPECT_EQ(second.layers[0].kind, models::SolidKind::kPlasterboard);
  EXPECT_DOUBLE_EQ(second.layers[0].youngs_modulus_pa, 4.1e9);
  ASSERT_EQ(element->cavities.size(), 1U);
  const auto& cavity = element->cavities[0];
  ASSERT_EQ(cavity.fills.size(), 2U);
  EXPECT_EQ(cavity.fills[0].kind, models::FillKind::kFibre);
  EXPECT_DOUBLE_EQ(cavity.fills[0].thickness_m, 0.060);
  EXPECT_EQ(cavity.fills[0].flow_resistivity_pa_s_m2, 14000.0);
  EXPECT_NEAR(cavity.fills[1].thickness_m, 0.015, 1e-12);
  ASSERT_EQ(cavity.connections.size(), 1U);
  EXPECT_DOUBLE_EQ(cavity.connections[0].density, 2.5);
  EXPECT_EQ(cavity.connections[0].compliance, models::kSteelStudCompliance);
}

TEST(LayeredInput, AKnownFrameTakesThePlaceOfTheAssumedOne) {
  const auto wood = LayeredElementOf(StudWall(), elements::Frame::kWoodStuds);
  ASSERT_TRUE(wood);
  EXPECT_DOUBLE_EQ(wood->bay_width_m, 0.4);
  EXPECT_EQ(wood->cavities[0].connections[0].compliance, models::kWoodStudCompliance);
  const auto apart = LayeredElementOf(StudWall(), elements::Frame::kSeparate);
  ASSERT_TRUE(apart);
  EXPECT_TRUE(apart->cavities[0].connections.empty());
  EXPECT_TRUE(apart->framed);
  const auto bare = LayeredElementOf(StudWall(), elements::Frame::kUnframed);
  ASSERT_TRUE(bare);
  EXPECT_FALSE(bare->framed);
}

TEST(LayeredInput, ALaminatedPaneIsTwoPliesOnASheet) {
  elements::Setup pane;
  pane.calculation = elements::Calculation::kSinglePaneGeneric;
  pane.leaf1.rows[0].slot = {.thickness_mm = 8.76,
                             .density_kg_m3 = 2500,
                             .youngs_modulus_gpa = 69,
                             .loss_factor = 0.02,
                             .poissons_ratio = 0.23};
  const auto element = LayeredElementOf(pane);
  ASSERT_TRUE(element);
  const auto& laminated = std::get<models::LaminatedPane>(element->leaves[0]);
  EXPECT_NEAR(laminated.outer.thickness_m, 0.004, 1e-12);
  EXPECT_NEAR(laminated.interlayer.thickness_m, 0.00076, 1e-12);
  pane.leaf1.rows[0].slot.loss_factor = 0.004;
  EXPECT_TRUE(std::holds_alternative<models::LayeredPlate>(LayeredElementOf(pane)->leaves[0]));
}

TEST(LayeredInput, AMasonryCavityWallIsNotTaken) {
  elements::Setup wall;
  wall.calculation = elements::Calculation::kDoubleWallGeneric;
  wall.leaf1.rows[0].slot = {
      .thickness_mm = 120, .density_kg_m3 = 1800, .youngs_modulus_gpa = 12.6, .poissons_ratio = 0.2};
  wall.leaf2 = wall.leaf1;
  EXPECT_FALSE(LayeredElementOf(wall));
}

TEST(LayeredInput, WhatHoldsNoNumberIsNotTaken) {
  elements::Setup wall = StudWall();
  wall.width_text = "largo";
  EXPECT_FALSE(LayeredElementOf(wall));
  wall = StudWall();
  wall.cavity.depth_text = "";
  EXPECT_FALSE(LayeredElementOf(wall));
  EXPECT_FALSE(LayeredElementOf({}));
  elements::Setup nothing;
  nothing.calculation = elements::Calculation::kSingleWallGeneric;
  EXPECT_FALSE(LayeredSpectrum(nothing));
}

TEST(LayeredInput, AFillThatIsTooThickIsPressedIntoTheCavity) {
  elements::Setup wall = StudWall();
  wall.cavity.fibre_text = "200";
  const auto element = LayeredElementOf(wall);
  ASSERT_TRUE(element);
  ASSERT_EQ(element->cavities[0].fills.size(), 1U);
  EXPECT_DOUBLE_EQ(element->cavities[0].fills[0].thickness_m, 0.075);
}

}  // namespace
}  // namespace velmar::validation
