#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/relations/relation.h"

namespace velmar::models {
namespace {

using enum RelationId;

struct ValueCase {
  RelationId id;
  const char* name;
  double rating_db;
};

class RelationValueTest : public testing::TestWithParam<ValueCase> {};

// m = M = 200 kg/m² (lg = 2.301029996), d = 7.5 cm (lg d = 0.875061263, lg (d + 1) = 0.929418926),
// w = 5 cm (lg (w + 1) = 0.778151250). Brick: 16 * 2.301029996 + 7 = 43.816479931, and so on.
TEST_P(RelationValueTest, FollowsItsFormulaInSinglePrecision) {
  RelationInput in;
  in.mass_kg_m2 = 200;
  in.leaf1_mass_kg_m2 = 50;
  in.leaf2_mass_kg_m2 = 150;
  in.cavity_depth_mm = 75;
  in.fibre_thickness_mm = 50;
  const RelationValue value = EvaluateRelation(GetParam().id, in);
  EXPECT_EQ(value.rating_db, static_cast<float>(GetParam().rating_db));
  EXPECT_EQ(value.improvement_db, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, RelationValueTest,
    testing::Values(ValueCase{kBrick, "Brick", 43.816479931},
                    ValueCase{kBrickFerrara, "BrickFerrara", 44.548642922},
                    ValueCase{kPlasterboard, "Plasterboard", 42.603698942},
                    ValueCase{kConcrete, "Concrete", 48.826779887},
                    ValueCase{kHBlocks, "HBlocks", 46.049251877},
                    ValueCase{kExpandedClayBlocks, "ExpandedClayBlocks", 48.548221881},
                    ValueCase{kConcreteBlocks, "ConcreteBlocks", 50.755852891},
                    ValueCase{kGypsumBlocks, "GypsumBlocks", 47.242041907},
                    ValueCase{kAeratedConcrete, "AeratedConcrete", 52.072144907},
                    ValueCase{kHollowBlockFloor, "HollowBlockFloor", 44.923689900},
                    ValueCase{kDoubleBrick, "DoubleBrick", 46.816479931},
                    ValueCase{kDoubleBrickFibre, "DoubleBrickFibre", 49.858948650},
                    ValueCase{kBoardsOnOneFrame, "BoardsOnOneFrame", 64.771212547},
                    ValueCase{kBoardsOnTwoFrames, "BoardsOnTwoFrames", 69.771212547},
                    ValueCase{kSingleBoardsOnSingleStuds, "SingleBoardsOnSingleStuds", 60.290121700},
                    ValueCase{kMultipleBoardsOnSingleStuds, "MultipleBoardsOnSingleStuds", 63.538697409},
                    ValueCase{kMultipleBoardsOnDoubleStuds, "MultipleBoardsOnDoubleStuds", 61.404546531},
                    ValueCase{kDoubleConcrete, "DoubleConcrete", 48.826779887},
                    ValueCase{kMonolithicPane, "MonolithicPane", 44.612359948},
                    ValueCase{kLaminatedPane, "LaminatedPane", 46.612359948},
                    ValueCase{kInsulatingUnit, "InsulatingUnit", 44.612359948},
                    ValueCase{kInsulatingUnitOneLaminated, "InsulatingUnitOneLaminated", 47.612359948},
                    ValueCase{kInsulatingUnitTwoLaminated, "InsulatingUnitTwoLaminated", 49.612359948}),
    [](const auto& test) { return test.param.name; });

struct RefusedRelation {
  RelationId id;
  const char* name;
  RelationInput in;
  MessageRow cause;
};

class RefusedRelationTest : public testing::TestWithParam<RefusedRelation> {};

TEST_P(RefusedRelationTest, NamesItsCause) {
  try {
    EvaluateRelation(GetParam().id, GetParam().in);
    FAIL() << "no failure";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage().back(), MessageLine{GetParam().cause}) << failure.what();
  }
}

RelationInput Leaves(double leaf1, double leaf2, float depth_mm = 0) {
  RelationInput in;
  in.leaf1_mass_kg_m2 = leaf1;
  in.leaf2_mass_kg_m2 = leaf2;
  in.cavity_depth_mm = depth_mm;
  return in;
}

INSTANTIATE_TEST_SUITE_P(
    Refused, RefusedRelationTest,
    testing::Values(
        RefusedRelation{kBrick, "PlateWithoutMass", {}, kZeroMassRow},
        RefusedRelation{kDoubleBrick, "LeavesWithoutMass", {}, kZeroMassRow},
        RefusedRelation{kInsulatingUnit, "NegativeMass", Leaves(-30, 10), kZeroMassRow},
        RefusedRelation{kBoardsOnOneFrame, "OneFrameWithoutDepth", Leaves(10, 10), kZeroCavityDepthRow},
        RefusedRelation{kBoardsOnTwoFrames, "TwoFramesWithoutDepth", Leaves(10, 10), kZeroCavityDepthRow},
        RefusedRelation{kFloatingScreed, "FloorWithoutMass", Leaves(0, 100), kZeroMassRow},
        RefusedRelation{kFloatingScreed, "ScreedWithoutMass", Leaves(300, 0), kZeroMassRow}),
    [](const auto& test) { return test.param.name; });

TEST(RelationValue, TakesACavityWithoutDepthWhereOneIsAdded) {
  EXPECT_NEAR(EvaluateRelation(kSingleBoardsOnSingleStuds, Leaves(10, 10)).rating_db,
              11 + 14 * std::log10(20.0), 1e-5);
}

RelationInput Floor(std::vector<ResilientLayer> layers, double floor_mass = 300, double screed_mass = 100) {
  RelationInput in = Leaves(floor_mass, screed_mass);
  in.resilient_layers = std::move(layers);
  return in;
}

// s' = 1 / (2 / 20 + 1 / 30) = 7.5 MN/m³, Rw0 = 23 lg 400 - 8 = 51.8473798,
// f0 = 160 sqrt((1/100 + 1/300) 7.5) = 50.5964426 Hz, improvement = 72 - (Rw0 / 2 + 20 lg f0) = 11.9939104
TEST(FloatingScreed, ImprovesTheFloorBelowIt) {
  const RelationValue value = EvaluateRelation(kFloatingScreed, Floor({{20, 2}, {30, 1}}));
  EXPECT_EQ(value.rating_db, static_cast<float>(63.841290247153076));
  EXPECT_EQ(value.improvement_db, static_cast<float>(11.993910446609938));
}

TEST(FloatingScreed, CountsOnlyLayersWithAStiffness) {
  const RelationValue value = EvaluateRelation(kFloatingScreed, Floor({{20, 2}, {0, 9}, {-5, 3}, {30, 1}}));
  EXPECT_EQ(value.rating_db, static_cast<float>(63.841290247153076));
}

TEST(FloatingScreed, WithoutAResilientLayerLeavesTheFloorAsItIsAndAsks) {
  for (const RelationInput& in : {Floor({}, 200, 100), Floor({{0, 1}}, 200, 100)}) {
    const RelationValue value = EvaluateRelation(kFloatingScreed, in);
    EXPECT_EQ(value.rating_db, static_cast<float>(23 * std::log10(300.0) - 8));
    EXPECT_EQ(value.improvement_db, 0);
    EXPECT_EQ(FirstRangeLeft(kFloatingScreed, in)->check, MessagePiece(MessageRow{214}));
  }
}

TEST(FloatingScreed, OnAVeryStiffLayerWorsensTheFloor) {
  EXPECT_LT(EvaluateRelation(kFloatingScreed, Floor({{5000, 1}})).improvement_db, 0);
}

struct FloorRange {
  const char* name;
  double floor_mass;
  double screed_mass;
  double stiffness;  ///< with 150 + 150 kg/m² the resonance is 160 sqrt(s' / 75) Hz
  int row;           ///< 0 when nothing is asked
};

class FloorRangeTest : public testing::TestWithParam<FloorRange> {};

TEST_P(FloorRangeTest, AsksInTheOrderOfItsChecks) {
  const FloorRange& range = GetParam();
  const auto question =
      FirstRangeLeft(kFloatingScreed, Floor({{range.stiffness, 1}}, range.floor_mass, range.screed_mass));
  if (range.row == 0) {
    EXPECT_FALSE(question);
  } else {
    EXPECT_EQ(question->check, MessagePiece(MessageRow{range.row}));
  }
}

// 23 lg M - 8 reaches 50 at M = 332.5 kg/m².
INSTANTIATE_TEST_SUITE_P(Ranges, FloorRangeTest,
                         testing::Values(FloorRange{"Inside", 200, 100, 20, 0},
                                         FloorRange{"LightestFloor", 150, 100, 20, 0},
                                         FloorRange{"TooLight", 149.9, 100, 20, 213},
                                         FloorRange{"HeaviestFloorIsTooGood", 400, 100, 20, 215},
                                         FloorRange{"TooHeavy", 400.1, 100, 20, 213},
                                         FloorRange{"BelowTheLowestRating", 232, 100, 20, 0},
                                         FloorRange{"AboveTheHighestRating", 233, 100, 20, 215},
                                         FloorRange{"LowestResonance", 150, 150, 4.6875, 0},
                                         FloorRange{"ResonanceTooLow", 150, 150, 4.68, 214},
                                         FloorRange{"HighestResonance", 150, 150, 117.1875, 0},
                                         FloorRange{"ResonanceTooHigh", 150, 150, 117.3, 214},
                                         FloorRange{"MassBeforeResonance", 100, 100, 1, 213},
                                         FloorRange{"ResonanceBeforeRating", 300, 100, 1, 214}),
                         [](const auto& test) { return test.param.name; });

TEST(FloatingScreed, FailsBeforeItAsks) {
  EXPECT_THROW(FirstRangeLeft(kFloatingScreed, Floor({{20, 1}}, 0, 100)), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
