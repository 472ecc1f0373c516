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

TEST(BoxOf, IsTheControlOfTheEditor) {
  EXPECT_EQ(BoxOf(MaterialKind::kStructural, MaterialProperty::kDensity), "Text4");
  EXPECT_EQ(BoxOf(MaterialKind::kFibrous, MaterialProperty::kDensity), "Text9");
  EXPECT_EQ(BoxOf(MaterialKind::kResilient, MaterialProperty::kDensity), "Text7");
  EXPECT_EQ(BoxOf(MaterialKind::kStructural, MaterialProperty::kAbsorption), "");
}

}  // namespace
}  // namespace velmar::materials
