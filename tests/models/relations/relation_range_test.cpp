#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/relations/relation.h"

namespace velmar::models {
namespace {

using enum RelationId;

/// The words of the first range left.
std::optional<MessagePiece> CheckLeft(RelationId id, const RelationInput& in) {
  const auto left = FirstRangeLeft(id, in);
  return left ? std::optional(left->check) : std::nullopt;
}

/// The fields that a range can look at.
enum class Field { kMass, kBothMasses, kDensity, kBothDensity, kThickness, kDepth, kFibre };

void Set(RelationInput& in, Field field, double value) {
  switch (field) {
    case Field::kMass:
      in.mass_kg_m2 = value;
      return;
    case Field::kBothMasses:
      in.leaf1_mass_kg_m2 = value / 4;
      in.leaf2_mass_kg_m2 = value - value / 4;
      return;
    case Field::kDensity:
      in.mass_kg_m2 = value * static_cast<double>(in.thickness_mm) / 1000.0;
      return;
    case Field::kBothDensity:
      in.leaf1_mass_kg_m2 = 0;
      in.leaf2_mass_kg_m2 = value * static_cast<double>(in.thickness_mm) / 1000.0;
      return;
    case Field::kThickness:
      in.thickness_mm = static_cast<float>(value);
      return;
    case Field::kDepth:
      in.cavity_depth_mm = static_cast<float>(value);
      return;
    case Field::kFibre:
      in.fibre_thickness_mm = static_cast<float>(value);
      return;
  }
}

/// An input inside of every range of `id`.
RelationInput Inside(RelationId id) {
  RelationInput in;
  in.thickness_mm = 250;
  in.mass_kg_m2 = 250;
  in.cavity_depth_mm = 60;
  in.fibre_thickness_mm = 50;
  in.cavity_kind = CavityKind::kFibrous;
  Set(in, Field::kBothMasses, 250);
  switch (id) {
    case kPlasterboard:
    case kGypsumBlocks:
    case kAeratedConcrete:
      in.mass_kg_m2 = 90;
      in.thickness_mm = 90;
      break;
    case kConcreteBlocks:
      in.mass_kg_m2 = 100;
      break;
    case kHBlocks:
    case kHollowBlockFloor:
      in.mass_kg_m2 = 350;
      break;
    case kBoardsOnOneFrame:
    case kBoardsOnTwoFrames:
    case kInsulatingUnit:
    case kInsulatingUnitOneLaminated:
    case kInsulatingUnitTwoLaminated:
      Set(in, Field::kBothMasses, 50);
      break;
    case kMonolithicPane:
    case kLaminatedPane:
      in.mass_kg_m2 = 30;
      break;
    case kDoubleConcrete:
      in.cavity_kind = CavityKind::kEmpty;
      break;
    default:
      break;
  }
  return in;
}

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

struct RangeCase {
  RelationId id;
  const char* name;
  Field field;
  double lowest;   ///< kNone without one
  double highest;  ///< kNone without one
  int row;
  double thickness_mm = 0.0;  ///< when another one than inside is needed to reach the limits
};

class RelationRangeTest : public testing::TestWithParam<RangeCase> {
 protected:
  std::optional<MessagePiece> Ask(double value) const {
    RelationInput in = Inside(GetParam().id);
    if (GetParam().thickness_mm > 0) in.thickness_mm = static_cast<float>(GetParam().thickness_mm);
    Set(in, GetParam().field, value);
    return CheckLeft(GetParam().id, in);
  }
  MessagePiece Question() const { return MessageRow{GetParam().row}; }
};

TEST_P(RelationRangeTest, HoldsBothItsEnds) {
  const RangeCase& range = GetParam();
  if (!std::isnan(range.lowest)) {
    EXPECT_EQ(Ask(range.lowest), std::nullopt);
    EXPECT_EQ(Ask(range.lowest * 1.001), std::nullopt);
    EXPECT_EQ(Ask(range.lowest * 0.999), Question());
  }
  if (!std::isnan(range.highest)) {
    EXPECT_EQ(Ask(range.highest), std::nullopt);
    EXPECT_EQ(Ask(range.highest * 0.999), std::nullopt);
    EXPECT_EQ(Ask(range.highest * 1.001), Question());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, RelationRangeTest,
    testing::Values(
        RangeCase{kBrick, "BrickMass", Field::kMass, 80, 400, 195},
        RangeCase{kBrickFerrara, "BrickFerraraMass", Field::kMass, 80, 500, 200},
        RangeCase{kPlasterboard, "PlasterboardMass", Field::kMass, kNone, 150, 196},
        RangeCase{kConcrete, "ConcreteMassLow", Field::kMass, 115, kNone, 197, 120},
        RangeCase{kConcrete, "ConcreteMassHigh", Field::kMass, kNone, 450, 197, 300},
        RangeCase{kConcrete, "ConcreteDensity", Field::kDensity, 750, 1600, 198},
        RangeCase{kConcrete, "ConcreteThickness", Field::kThickness, kNone, 330, 199},
        RangeCase{kHBlocks, "HBlocksMass", Field::kMass, 300, 500, 201},
        RangeCase{kExpandedClayBlocks, "ClayMassLow", Field::kMass, 115, kNone, 197, 120},
        RangeCase{kExpandedClayBlocks, "ClayMassHigh", Field::kMass, kNone, 450, 197, 300},
        RangeCase{kExpandedClayBlocks, "ClayDensity", Field::kDensity, 750, 1600, 198},
        RangeCase{kExpandedClayBlocks, "ClayThickness", Field::kThickness, kNone, 330, 199},
        RangeCase{kConcreteBlocks, "BlocksMass", Field::kMass, 60, 200, 202},
        RangeCase{kConcreteBlocks, "BlocksThickness", Field::kThickness, 80, 330, 203},
        RangeCase{kGypsumBlocks, "GypsumMass", Field::kMass, 70, 110, 204},
        RangeCase{kGypsumBlocks, "GypsumThickness", Field::kThickness, 80, 100, 205},
        RangeCase{kAeratedConcrete, "AeratedMass", Field::kMass, 70, 150, 206},
        RangeCase{kHollowBlockFloor, "FloorMass", Field::kMass, 250, 500, 191},
        RangeCase{kDoubleBrick, "DoubleBrickMass", Field::kBothMasses, 80, 400, 207},
        RangeCase{kDoubleBrick, "DoubleBrickDepth", Field::kDepth, 50, kNone, 208},
        RangeCase{kDoubleBrickFibre, "FibreMass", Field::kBothMasses, 80, 400, 207},
        RangeCase{kDoubleBrickFibre, "FibreDepth", Field::kDepth, 50, kNone, 212},
        RangeCase{kBoardsOnOneFrame, "OneFrameMass", Field::kBothMasses, kNone, 80, 209},
        RangeCase{kBoardsOnOneFrame, "OneFrameThickness", Field::kThickness, kNone, 300, 210},
        RangeCase{kBoardsOnOneFrame, "OneFrameFibre", Field::kFibre, kNone, 80, 211},
        RangeCase{kBoardsOnTwoFrames, "TwoFramesMass", Field::kBothMasses, kNone, 80, 209},
        RangeCase{kBoardsOnTwoFrames, "TwoFramesThickness", Field::kThickness, kNone, 300, 210},
        RangeCase{kBoardsOnTwoFrames, "TwoFramesFibre", Field::kFibre, kNone, 80, 211},
        RangeCase{kDoubleConcrete, "DoubleConcreteMassLow", Field::kBothMasses, 115, kNone, 197, 120},
        RangeCase{kDoubleConcrete, "DoubleConcreteMassHigh", Field::kBothMasses, kNone, 450, 197, 300},
        RangeCase{kDoubleConcrete, "DoubleConcreteDensity", Field::kBothDensity, 750, 1600, 198},
        RangeCase{kDoubleConcrete, "DoubleConcreteThickness", Field::kThickness, kNone, 330, 199},
        RangeCase{kMonolithicPane, "PaneMass", Field::kMass, kNone, 60, 216},
        RangeCase{kLaminatedPane, "LaminatedMass", Field::kMass, kNone, 60, 216},
        RangeCase{kInsulatingUnit, "UnitMass", Field::kBothMasses, kNone, 60, 216},
        RangeCase{kInsulatingUnitOneLaminated, "OneLaminatedMass", Field::kBothMasses, kNone, 60, 216},
        RangeCase{kInsulatingUnitTwoLaminated, "TwoLaminatedMass", Field::kBothMasses, kNone, 60, 216}),
    [](const auto& test) { return test.param.name; });

TEST(RelationRange, OfConcreteThicknessHoldsItsLowerEnd) {
  RelationInput in;
  in.mass_kg_m2 = 150;
  for (const RelationId id : {kConcrete, kExpandedClayBlocks}) {
    in.thickness_mm = 110;
    EXPECT_EQ(CheckLeft(id, in), std::nullopt);
    in.thickness_mm = 109;
    EXPECT_EQ(CheckLeft(id, in), MessagePiece(MessageRow{199}));
  }
  in.cavity_kind = CavityKind::kEmpty;
  in.leaf1_mass_kg_m2 = in.leaf2_mass_kg_m2 = 75;
  EXPECT_EQ(CheckLeft(kDoubleConcrete, in), MessagePiece(MessageRow{199}));
  in.thickness_mm = 110;
  EXPECT_EQ(CheckLeft(kDoubleConcrete, in), std::nullopt);
}

TEST(RelationRange, OfStudFramesAsksNothingAtAllThreeLimits) {
  RelationInput in;
  in.leaf1_mass_kg_m2 = 40.0;
  in.leaf2_mass_kg_m2 = 40.0;
  in.thickness_mm = 300.0F;
  in.fibre_thickness_mm = 80.0F;
  EXPECT_EQ(CheckLeft(kBoardsOnOneFrame, in), std::nullopt);
  EXPECT_EQ(CheckLeft(kBoardsOnTwoFrames, in), std::nullopt);
}

TEST(RelationRange, AsksWithTheFirstCheckThatFails) {
  RelationInput in;
  in.mass_kg_m2 = 50;  // mass, density and thickness are all out of range
  in.thickness_mm = 900;
  EXPECT_EQ(CheckLeft(kConcrete, in), MessagePiece(MessageRow{197}));
  in.mass_kg_m2 = 200;
  EXPECT_EQ(CheckLeft(kConcrete, in), MessagePiece(MessageRow{198}));
  in.mass_kg_m2 = 20;  // a check that fails ends the checks: the missing thickness is not reached
  in.thickness_mm = 0;
  EXPECT_EQ(CheckLeft(kConcrete, in), MessagePiece(MessageRow{197}));
  in.mass_kg_m2 = 200;
  EXPECT_THROW(CheckLeft(kConcrete, in), ArithmeticFailure);
}

TEST(RelationRange, OfDoubleBrickWantsFibres) {
  RelationInput in = Inside(kDoubleBrick);
  for (const CavityKind kind : {CavityKind::kEmpty, CavityKind::kGenericMaterial}) {
    in.cavity_kind = kind;
    EXPECT_EQ(CheckLeft(kDoubleBrick, in), MessagePiece(MessageRow{209}));
    EXPECT_EQ(CheckLeft(kDoubleBrickFibre, in), std::nullopt);
  }
}

TEST(RelationRange, OfDoubleConcreteWantsAnEmptyCavity) {
  RelationInput in = Inside(kDoubleConcrete);
  EXPECT_EQ(CheckLeft(kDoubleConcrete, in), std::nullopt);
  for (const CavityKind kind : {CavityKind::kFibrous, CavityKind::kGenericMaterial}) {
    in.cavity_kind = kind;
    EXPECT_EQ(CheckLeft(kDoubleConcrete, in),
              MessagePiece(
                  std::string("La formula empirica si riferisce a pareti doppie con l'intercapedine vuota")));
  }
}

TEST(RelationRange, OfBoardWallsWithCavityFactorsDoesNotExist) {
  RelationInput in;
  in.leaf1_mass_kg_m2 = 4000;
  in.thickness_mm = 9000;
  for (const RelationId id :
       {kSingleBoardsOnSingleStuds, kMultipleBoardsOnSingleStuds, kMultipleBoardsOnDoubleStuds}) {
    EXPECT_EQ(CheckLeft(id, in), std::nullopt);
  }
}

// 1600 kg/m³ times a thickness, divided by the same thickness, is 1600 only up to rounding.
TEST(RelationRange, HoldsItsEndWhateverTheThickness) {
  for (int thickness_mm = 110; thickness_mm <= 330; ++thickness_mm) {
    RelationInput in;
    in.thickness_mm = static_cast<float>(thickness_mm);
    in.mass_kg_m2 = 1600.0 * thickness_mm / 1000.0;
    const auto asked = CheckLeft(kConcrete, in);
    EXPECT_NE(asked, MessagePiece(MessageRow{198})) << thickness_mm;
    in.mass_kg_m2 *= 1.0 + 1e-9;
    if (in.mass_kg_m2 > 450.0) continue;
    EXPECT_EQ(CheckLeft(kConcrete, in), MessagePiece(MessageRow{198}));
  }
}

TEST(RelationRange, TellsTheValueAndTheEndsThatItLeft) {
  RelationInput in;
  in.mass_kg_m2 = 79.5;
  const auto brick = FirstRangeLeft(kBrick, in);
  ASSERT_TRUE(brick);
  EXPECT_EQ(*brick, (acoustics::RangeLeft{MessageRow{195}, 79.5, 80.0, 400.0, "kg/m²", MessageRow{3300}}));
  in = Inside(kDoubleConcrete);
  in.cavity_kind = CavityKind::kFibrous;
  EXPECT_EQ(FirstRangeLeft(kDoubleConcrete, in)->unit, "");
}

}  // namespace
}  // namespace velmar::models
