#include "materials/judged_values.h"

#include <vector>

#include <gtest/gtest.h>

namespace velmar::materials {
namespace {

using elements::MaterialKind;
using elements::MaterialProperty;
using elements::Plausibility;
using elements::PropertyFinding;

constexpr PropertyFinding kNegative{MaterialKind::kStructural, MaterialProperty::kDensity, -5,
                                    Plausibility::kImpossible};
constexpr PropertyFinding kLoss{MaterialKind::kFibrous, MaterialProperty::kLossFactor, 2,
                                Plausibility::kImpossible};
constexpr PropertyFinding kOdd{MaterialKind::kResilient, MaterialProperty::kDynamicStiffness, 0.3,
                               Plausibility::kImprobable};

TEST(ImpossibleValues, HaveALineEachWithWhatIsPossible) {
  const auto message = ImpossibleValues(std::vector{kNegative, kOdd, kLoss});
  ASSERT_TRUE(message);
  ASSERT_EQ(message->size(), 3U);
  EXPECT_EQ((*message)[0], (MessageLine{MessageRow{2500}}));
  EXPECT_EQ((*message)[1], (MessageLine{"- ", MessageRow{350}, ": -5 (", MessageRow{2506}, " 0)"}));
  EXPECT_EQ((*message)[2],
            (MessageLine{"- ", MessageRow{353}, ": 2 (", MessageRow{2504}, " 0 ", MessageRow{2505}, " 1)"}));
  EXPECT_FALSE(ImpossibleValues(std::vector{kOdd}));
}

TEST(ImprobableValues, HaveALineEachWithWhatIsUsual) {
  const auto message = ImprobableValues(std::vector{kNegative, kOdd});
  ASSERT_TRUE(message);
  ASSERT_EQ(message->size(), 2U);
  EXPECT_EQ((*message)[1], (MessageLine{"- ", MessageRow{2509}, ": 0,3 (", MessageRow{2504}, " 1 ",
                                        MessageRow{2505}, " 3000)"}));
  EXPECT_FALSE(ImprobableValues(std::vector{kNegative}));
}

TEST(NameOf, IsTheRowOfTheProperty) {
  EXPECT_EQ(NameOf(MaterialProperty::kThickness), MessageRow{349});
  EXPECT_EQ(NameOf(MaterialProperty::kSurfaceMass), MessageRow{351});
  EXPECT_EQ(NameOf(MaterialProperty::kYoungsModulus), MessageRow{352});
  EXPECT_EQ(NameOf(MaterialProperty::kCriticalFrequency), MessageRow{2507});
  EXPECT_EQ(NameOf(MaterialProperty::kPoissonsRatio), MessageRow{2508});
  EXPECT_EQ(NameOf(MaterialProperty::kFlowResistance), MessageRow{1141});
  EXPECT_EQ(NameOf(MaterialProperty::kImpactImprovement), MessageRow{2510});
  EXPECT_EQ(NameOf(MaterialProperty::kResonanceFrequency), MessageRow{2511});
  EXPECT_EQ(NameOf(MaterialProperty::kAbsorption), MessageRow{2512});
}

}  // namespace
}  // namespace velmar::materials
