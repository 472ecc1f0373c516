#include "elements/plausibility.h"

#include <cmath>
#include <limits>
#include <ostream>

#include <gtest/gtest.h>

namespace velmar::elements {
namespace {

using enum MaterialProperty;
using enum Plausibility;

struct Case {
  const char* name = "";
  MaterialKind kind{};
  MaterialProperty property{};
  double value = 0.0;
  Plausibility verdict{};
};

void PrintTo(const Case& test, std::ostream* out) { *out << test.name; }

class JudgeTest : public testing::TestWithParam<Case> {};

TEST_P(JudgeTest, TellsWhatAValueMayBe) {
  EXPECT_EQ(Judge(GetParam().kind, GetParam().property, GetParam().value), GetParam().verdict);
}

constexpr MaterialKind kWall = MaterialKind::kStructural;
constexpr MaterialKind kFill = MaterialKind::kFibrous;
constexpr MaterialKind kMat = MaterialKind::kResilient;

INSTANTIATE_TEST_SUITE_P(
    Values, JudgeTest,
    testing::Values(Case{"Brick", kWall, kDensity, 1800, kUsual},
                    Case{"Lead", kWall, kDensity, 11340, kUsual},
                    Case{"GramsPerLitreAsKilograms", kWall, kDensity, 180000, kImprobable},
                    Case{"NegativeDensity", kWall, kDensity, -1, kImpossible},
                    Case{"NoDensity", kWall, kDensity, 0, kImprobable},
                    Case{"NegativeThickness", kWall, kThickness, -0.1, kImpossible},
                    Case{"ThicknessInMetres", kWall, kThickness, 0.012, kImprobable},
                    Case{"Steel", kWall, kYoungsModulus, 210, kUsual},
                    Case{"ModulusInMegapascal", kWall, kYoungsModulus, 4100, kImprobable},
                    Case{"NegativeModulus", kWall, kYoungsModulus, -4.1, kImpossible},
                    Case{"LossOfOne", kWall, kLossFactor, 1, kImprobable},
                    Case{"LossAboveOne", kWall, kLossFactor, 1.01, kImpossible},
                    Case{"LossBelowZero", kWall, kLossFactor, -0.01, kImpossible},
                    Case{"PoissonOfRubber", kWall, kPoissonsRatio, 0.49, kUsual},
                    Case{"PoissonOfALiquid", kWall, kPoissonsRatio, 0.5, kImprobable},
                    Case{"PoissonAboveAHalf", kWall, kPoissonsRatio, 0.51, kImpossible},
                    Case{"PoissonBelowZero", kWall, kPoissonsRatio, -0.01, kImpossible},
                    Case{"NoCriticalFrequency", kWall, kCriticalFrequency, 0, kUsual},
                    Case{"Wool", kFill, kFlowResistance, 840, kUsual},
                    Case{"NegativeResistance", kFill, kFlowResistance, -840, kImpossible},
                    Case{"AbsorptionAboveOne", kFill, kAbsorption, 1.1, kUsual},
                    Case{"AbsorptionFarAboveOne", kFill, kAbsorption, 1.4, kImprobable},
                    Case{"AbsorptionTooMuch", kFill, kAbsorption, 1.6, kImpossible},
                    Case{"HeavyFill", kFill, kDensity, 1800, kImprobable},
                    Case{"MatOfUnknownDensity", kMat, kDensity, 0, kUsual},
                    Case{"Mat", kMat, kDynamicStiffness, 30, kUsual},
                    Case{"StiffnessInMeganewtonPerSquareMetre", kMat, kDynamicStiffness, 0.3, kImprobable},
                    Case{"NegativeStiffness", kMat, kDynamicStiffness, -30, kImpossible},
                    Case{"WorseThanNothing", kMat, kImpactImprovement, -3, kImprobable},
                    Case{"NoNumber", kMat, kImpactImprovement, std::numeric_limits<double>::quiet_NaN(),
                         kImpossible}),
    [](const auto& test) { return test.param.name; });

TEST(FindingsOf, JudgesWhatTheMaterialHoldsInTheOrderOfItsFields) {
  StructuralRecord brick{{.name = "x",
                          .thickness_mm = -1,
                          .density_kg_m3 = 1800,
                          .youngs_modulus_gpa = 12000,
                          .critical_frequency_hz = 0,
                          .loss_factor = 0.01,
                          .poissons_ratio = 0.6,
                          .surface_mass_kg_m2 = 216},
                         {}};
  const auto findings = FindingsOf(brick);
  ASSERT_EQ(findings.size(), 3U);
  EXPECT_EQ(findings[0], (PropertyFinding{kWall, kThickness, -1, kImpossible}));
  EXPECT_EQ(findings[1], (PropertyFinding{kWall, kYoungsModulus, 12000, kImprobable}));
  EXPECT_EQ(findings[2], (PropertyFinding{kWall, kPoissonsRatio, 0.6, kImpossible}));
  EXPECT_EQ(Only(findings, kImpossible).size(), 2U);
  brick.nulls = {&StructuralMaterial::thickness_mm, &StructuralMaterial::youngs_modulus_gpa};
  EXPECT_EQ(FindingsOf(brick).size(), 1U) << "a null is no value";
}

TEST(FindingsOf, JudgesOnlyTheNumbersOfTheKindOfAFibrousMaterial) {
  FibrousRecord wool{{.name = "x",
                      .thickness_mm = 50,
                      .density_kg_m3 = 40,
                      .porous = true,
                      .youngs_modulus_gpa = -1,
                      .flow_resistance_pa_s_m = 700},
                     {}};
  EXPECT_TRUE(FindingsOf(wool).empty());
  wool.values.absorption[3] = 1.45F;
  EXPECT_EQ(FindingsOf(wool).size(), 1U);
  wool.values.porous = false;
  const auto findings = FindingsOf(wool);
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].property, kYoungsModulus);
  EXPECT_EQ(findings[1].property, kLossFactor) << "0 is no loss factor that is usual";
}

}  // namespace
}  // namespace velmar::elements
