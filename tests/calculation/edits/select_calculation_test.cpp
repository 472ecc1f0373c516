#include "calculation/edits/select_calculation.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::CavityKind;

struct Defaults {
  const char* name;
  Calculation calculation;
  const char* width;
  const char* height;
  const char* support;
};

class SelectCalculationTest : public testing::TestWithParam<Defaults> {};

TEST_P(SelectCalculationTest, BringsItsDefaults) {
  elements::Setup setup;
  setup.width_text = "5";
  setup.height_text = "3,1";
  setup.support_distance_text = "7";
  SelectCalculation(setup, GetParam().calculation);
  EXPECT_EQ(setup.calculation, GetParam().calculation);
  EXPECT_EQ(setup.width_text, GetParam().width);
  EXPECT_EQ(setup.height_text, GetParam().height);
  EXPECT_EQ(setup.support_distance_text, GetParam().support);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, SelectCalculationTest,
    testing::Values(
        Defaults{"SingleWallKeepsWhatWasEntered", Calculation::kSingleWallBrick, "5", "3,1", "7"},
        Defaults{"DoubleWall", Calculation::kDoubleWallGeneric, "3,6", "3", "7"},
        Defaults{"DoubleSeaWall", Calculation::kDoubleWallSeaBrick, "3,6", "3", "7"},
        Defaults{"LightWall", Calculation::kLightWallLineLine, "3,6", "3", "60"},
        Defaults{"IsolatedLightWall", Calculation::kLightWallIsolated, "3,6", "3", "60"},
        Defaults{"GenericInsulatingGlass", Calculation::kInsulatingGlassGeneric, "5", "3,1", "60"},
        Defaults{"InsulatingGlass", Calculation::kInsulatingGlass, "5", "3,1", "7"},
        Defaults{"PointPlasterboard", Calculation::kDoubleWallSeaPlasterboardPoint, "1,2", "2,8", "20"},
        Defaults{"LinePlasterboard", Calculation::kDoubleWallSeaPlasterboardLine, "1,2", "2,8", "1"},
        Defaults{"FramedLining", Calculation::kLiningFrame, "5", "3,1", "1"},
        Defaults{"Floor", Calculation::kFloorWithFloatingScreed, "5", "3,1", "7"}),
    [](const auto& test) { return test.param.name; });

TEST(SelectCalculation, LeavesAGenericCavityWhereItIsOffered) {
  elements::Setup setup;
  setup.cavity.kind = CavityKind::kGenericMaterial;
  SelectCalculation(setup, Calculation::kDoubleWallGeneric);
  EXPECT_EQ(setup.cavity.kind, CavityKind::kGenericMaterial);
  SelectCalculation(setup, Calculation::kDoubleWallBrick);
  EXPECT_EQ(setup.cavity.kind, CavityKind::kFibrous);
}

TEST(SelectCalculation, StartsASeaCavityEmptyAndALiningWithFibre) {
  elements::Setup setup;
  setup.sea_cavity.type = elements::SeaCavityType::kMassFibreMass;
  SelectCalculation(setup, Calculation::kDoubleWallSeaBrick);
  EXPECT_EQ(setup.sea_cavity.type, elements::SeaCavityType::kEmpty);
  SelectCalculation(setup, Calculation::kCeilingSea);
  EXPECT_EQ(setup.sea_cavity.type, elements::SeaCavityType::kFibre);
}

TEST(SelectCalculation, TellsTheBaseOfAGenericLiningByItsRatingAlone) {
  elements::Setup setup;
  SelectCalculation(setup, Calculation::kLiningGeneric);
  EXPECT_TRUE(setup.facade.simplified);
  SelectCalculation(setup, Calculation::kLiningCalibel);
  EXPECT_FALSE(setup.facade.simplified);
}

}  // namespace
}  // namespace velmar::calculation
