#include "validation/multilayer_setup.h"

#include <cmath>
#include <map>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "tests/validation/shipped_measurements.h"
#include "validation/accuracy.h"
#include "validation/model_prediction.h"

namespace velmar::validation {
namespace {

using elements::CavityConnection;
using elements::StratumKind;

constexpr const char* kVariant = "Multistrato generico";

std::map<std::string, Prediction> ById(std::vector<Prediction> predictions) {
  std::map<std::string, Prediction> by_id;
  for (Prediction& prediction : predictions) {
    std::string id = prediction.measured;
    by_id.emplace(std::move(id), std::move(prediction));
  }
  return by_id;
}

/// Predicted with the frame that the source states.
const std::map<std::string, Prediction>& OfTheModel() {
  static const auto by_id = [] {
    std::vector<Prediction> told;
    for (Prediction& prediction : PredictWithLayered(ShippedMeasurements()).predictions) {
      if (prediction.frame_known) told.push_back(std::move(prediction));
    }
    return ById(std::move(told));
  }();
  return by_id;
}

const PredictionOutcome& OfTheCalculation() {
  static const PredictionOutcome outcome = PredictWithMultilayer(ShippedMeasurements());
  return outcome;
}

// The calculation reads its rows by itself; what it makes of them is what the model makes of the element.
TEST(MultilayerPredictions, AgreeWithTheModelOnEveryMeasuredConstruction) {
  EXPECT_TRUE(OfTheCalculation().refused.empty());
  const auto listed = ById(OfTheCalculation().predictions);
  EXPECT_EQ(listed.size(), OfTheModel().size());
  for (const auto& [id, prediction] : listed) {
    const Prediction& model = OfTheModel().at(id);
    EXPECT_EQ(prediction.predicted, model.predicted) << id;
    for (std::size_t band = 0; band < prediction.octave_errors.size(); ++band) {
      ASSERT_EQ(prediction.octave_errors[band].has_value(), model.octave_errors[band].has_value()) << id;
      if (model.octave_errors[band]) {
        EXPECT_NEAR(*prediction.octave_errors[band], *model.octave_errors[band], 1e-6) << id;
      }
    }
  }
}

TEST(MultilayerPredictions, AreOfTheKindThatTheRowsTell) {
  for (const Prediction& prediction : OfTheCalculation().predictions) {
    EXPECT_EQ(prediction.model, kVariant);
    EXPECT_FALSE(prediction.frame_known) << prediction.measured;
    const Prediction& model = OfTheModel().at(prediction.measured);
    // A row says that something yields, not whether it is a stud or a channel.
    const ElementKind kind =
        model.kind == ElementKind::kResilientStuds ? ElementKind::kResilientChannels : model.kind;
    EXPECT_EQ(RowOf(prediction.kind).id, RowOf(kind).id) << prediction.measured;
    EXPECT_NEAR(prediction.features.depth_mm, model.features.depth_mm, 1e-6) << prediction.measured;
  }
}

elements::Setup Listed(std::initializer_list<StratumKind> kinds) {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kMultilayerGeneric;
  setup.multilayer.count = static_cast<int>(kinds.size());
  std::size_t i = 0;
  for (const StratumKind kind : kinds) {
    elements::Stratum& row = setup.multilayer.strata.at(i++);
    row.kind = kind;
    row.thickness_text = kind == StratumKind::kAir ? "12" : "0,76";
    row.solid.slot = {.thickness_mm = 4,
                      .density_kg_m3 = 2500,
                      .youngs_modulus_gpa = 68,
                      .loss_factor = 0.004,
                      .poissons_ratio = 0.23};
  }
  return setup;
}

using enum StratumKind;

TEST(MultilayerKinds, OfGlassFollowInterlayersAndDepth) {
  EXPECT_EQ(KindOf(Listed({kPlate})), ElementKind::kSinglePane);
  EXPECT_EQ(KindOf(Listed({kPlate, kInterlayer, kPlate})), ElementKind::kLaminatedPane);
  elements::Setup unit = Listed({kPlate, kAir, kPlate, kInterlayer, kPlate});
  EXPECT_EQ(KindOf(unit), ElementKind::kInsulatingUnit);
  unit.multilayer.strata[1].thickness_text = "100";
  EXPECT_EQ(KindOf(unit), ElementKind::kDoubleWindow);
}

// Nobody measured them for these data: no error of another kind is lent to them.
TEST(MultilayerKinds, OfThreeLeavesCoresAndProfilesAreUnknown) {
  EXPECT_EQ(KindOf(Listed({kPlate, kAir, kPlate, kAir, kPlate})), ElementKind::kOther);
  EXPECT_EQ(KindOf(Listed({kPlate, kCore, kPlate})), ElementKind::kOther);
  EXPECT_EQ(KindOf(Listed({kProfiledSheet})), ElementKind::kOther);
  EXPECT_EQ(KindOf(Listed({kProfiledSheet, kAir, kPlate})), ElementKind::kOther);
}

TEST(MultilayerKinds, OfBoardsFollowTheConnection) {
  elements::Setup wall = Listed({kPlate, kFibre, kPlate});
  for (elements::Stratum& row : wall.multilayer.strata) {
    row.solid.slot = {.thickness_mm = 12.5, .density_kg_m3 = 850, .youngs_modulus_gpa = 4.1};
    row.fibre.slot = {.thickness_mm = 60, .density_kg_m3 = 40, .porous = true};
  }
  const auto kind = [&](CavityConnection connection) {
    wall.multilayer.strata[1].connection = connection;
    return KindOf(wall);
  };
  EXPECT_EQ(kind(CavityConnection::kNone), ElementKind::kSeparateFrames);
  EXPECT_EQ(kind(CavityConnection::kWoodStuds), ElementKind::kWoodStuds);
  EXPECT_EQ(kind(CavityConnection::kSteelStuds), ElementKind::kSteelStuds);
  EXPECT_EQ(kind(CavityConnection::kResilient), ElementKind::kResilientChannels);
  EXPECT_EQ(kind(CavityConnection::kPoints), ElementKind::kOther);
  EXPECT_TRUE(FeaturesOf(wall).filled);
  EXPECT_DOUBLE_EQ(FeaturesOf(wall).depth_mm, 60.0);
}

}  // namespace
}  // namespace velmar::validation
