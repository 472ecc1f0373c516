#include "materials/coupled_boxes.h"

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

struct MassCase {
  const char* name;
  MassBoxes before;
  MassBox left;
  MassBoxes after;
};

class CoupleMassTest : public testing::TestWithParam<MassCase> {};

TEST_P(CoupleMassTest, FillsTheThirdBox) {
  EXPECT_EQ(CoupleMass(GetParam().before, GetParam().left), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, CoupleMassTest,
    testing::Values(
        MassCase{"ThicknessGivesMass", {"12,5", "900", ""}, MassBox::kThickness, {"12,5", "900", "11,25"}},
        MassCase{"ThicknessGivesDensity", {"100", "", "150"}, MassBox::kThickness, {"100", "1500,00", "150"}},
        MassCase{"ThicknessBesideAll", {"200", "1000", "1"}, MassBox::kThickness, {"200", "1000", "200,00"}},
        MassCase{"DensityGivesMass", {"100", "2400", ""}, MassBox::kDensity, {"100", "2400", "240,00"}},
        MassCase{"DensityGivesThickness", {"", "2400", "240"}, MassBox::kDensity, {"100,00", "2400", "240"}},
        MassCase{"MassGivesThickness", {"", "2400", "240"}, MassBox::kSurfaceMass, {"100,00", "2400", "240"}},
        MassCase{"MassGivesDensity", {"100", "", "240"}, MassBox::kSurfaceMass, {"100", "2400,00", "240"}},
        MassCase{"MassBesideAll", {"1", "2400", "240"}, MassBox::kSurfaceMass, {"100,00", "2400", "240"}},
        MassCase{"NoThicknessNoMass", {"0", "900", ""}, MassBox::kThickness, {"0", "900", "0,00"}},
        MassCase{"NothingByZero", {"0", "", "10"}, MassBox::kThickness, {"0", "", "10"}},
        MassCase{"Absolute", {"-10", "-900", ""}, MassBox::kDensity, {"-10", "-900", "9,00"}},
        MassCase{"PointIsComma", {"12.5", "900", ""}, MassBox::kThickness, {"12.5", "900", "11,25"}},
        MassCase{"OneAloneGivesNothing", {"10", "", ""}, MassBox::kThickness, {"10", "", ""}},
        MassCase{"TheBoxLeftIsEmpty", {"", "900", "9"}, MassBox::kThickness, {"", "900", "9"}},
        MassCase{"NoNumber", {"dieci", "900", ""}, MassBox::kThickness, {"dieci", "900", ""}},
        MassCase{
            "NoNumberIsNotOverwritten", {"dieci", "900", "9"}, MassBox::kDensity, {"dieci", "900", "9"}}),
    [](const auto& test) { return test.param.name; });

struct ResilientCase {
  const char* name;
  ResilientBoxes before;
  ResilientBox left;
  ResilientBoxes after;
};

class CoupleResilientTest : public testing::TestWithParam<ResilientCase> {};

TEST_P(CoupleResilientTest, FillsTheOthers) {
  EXPECT_EQ(CoupleResilient(GetParam().before, GetParam().left), GetParam().after);
}

// s' = 25: f0 = 160 * sqrt(0.25) = 80; 18.3 - 15 lg(25 / 100) = 27.331
INSTANTIATE_TEST_SUITE_P(
    Boxes, CoupleResilientTest,
    testing::Values(
        ResilientCase{"Stiffness", {"25", "", ""}, ResilientBox::kStiffness, {"25", "27,3", "80,0"}},
        ResilientCase{"Improvement", {"", "33,3", ""}, ResilientBox::kImprovement, {"10", "33,3", "50,6"}},
        ResilientCase{"Resonance", {"", "", "160"}, ResilientBox::kResonance, {"100", "18,3", "160"}},
        ResilientCase{"Negative", {"-1", "a", "b"}, ResilientBox::kStiffness, {"-1", "a", "b"}},
        ResilientCase{"NegativeImprovement", {"1", "-1", "2"}, ResilientBox::kImprovement, {"1", "-1", "2"}},
        ResilientCase{"NoNumber", {"x", "1", "2"}, ResilientBox::kStiffness, {"x", "1", "2"}},
        ResilientCase{"ZeroHasNoLogarithm", {"0", "7", ""}, ResilientBox::kStiffness, {"0", "7", "0,0"}},
        ResilientCase{"Empty", {"", "1", "2"}, ResilientBox::kStiffness, {"", "1", "2"}}),
    [](const auto& test) { return test.param.name; });

TEST(StandardImprovement, IsThatOfEnIso12354) {
  EXPECT_EQ(StandardImprovement("10"), "32,6");
  EXPECT_EQ(StandardImprovement("25"), "26,9");
  for (const char* none : {"", "0", "-3", "x"}) EXPECT_EQ(StandardImprovement(none), "") << none;
}

}  // namespace
}  // namespace velmar::materials
