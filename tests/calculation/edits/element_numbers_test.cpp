#include "calculation/edits/element_numbers.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using enum elements::Calculation;

TEST(ElementNumbers, AreKeptAsTyped) {
  for (const char* text : {"45", "45,5", "45.5", "-3", "1E1", "", ",", ".", "-"}) {
    std::string box = "30";
    EnterElementNumber(box, text);
    EXPECT_EQ(box, text);
  }
}

TEST(ElementNumbers, EmptyTheBoxWhenTheyAreNone) {
  for (const char* text : {"1E", "--", "abc", "4,5,6", "1 2", "nan", "inf"}) {
    std::string box = "30";
    EnterElementNumber(box, text);
    EXPECT_EQ(box, "") << text;
  }
}

TEST(ComponentAreas, MayBeADashForASmallElement) {
  std::string box = "2,4";
  EnterComponentArea(box, "-");
  EXPECT_EQ(box, "-");
  EnterComponentArea(box, "1,8");
  EXPECT_EQ(box, "1,8");
  EnterComponentArea(box, "--");
  EXPECT_EQ(box, "");
}

struct Share {
  const char* whole = "";
  const char* part = "";
  std::optional<double> percent;
};

class AreaShares : public testing::TestWithParam<Share> {};

TEST_P(AreaShares, AreOfTheWholeFacade) {
  elements::Setup setup;
  setup.base.area_text = GetParam().whole;
  setup.facade.components[2].area_text = GetParam().part;
  EXPECT_EQ(AreaShare(setup, 2), GetParam().percent);
}

INSTANTIATE_TEST_SUITE_P(Areas, AreaShares,
                         testing::Values(Share{"10", "2,5", 25.0}, Share{"12.5", "12.5", 100.0},
                                         Share{"10", "-", 0.0}, Share{"10", "15", 150.0},
                                         Share{"-10", "2,5", std::nullopt}, Share{"10", "-2,5", std::nullopt},
                                         Share{"10", "", std::nullopt}, Share{"", "2", std::nullopt},
                                         Share{"0", "2", std::nullopt}, Share{",", "2", std::nullopt}));

TEST(AreaShares, OfAComponentThatIsNotThereThrow) {
  elements::Setup setup;
  setup.base.area_text = "10";
  EXPECT_THROW(AreaShare(setup, 9), std::out_of_range);
}

TEST(Dimensions, AreNumbersOtherThanNought) {
  for (const char* text : {"3", "2,5", "2.5", "1E-3", "0,01"}) EXPECT_TRUE(IsDimension(text)) << text;
  for (const char* text : {"", "0", "0,0", ",", "1E", "tre", "-"}) EXPECT_FALSE(IsDimension(text)) << text;
}

TEST(Dimensions, StayAsTypedForAnElement) {
  for (const auto calculation :
       {kSingleWallGeneric, kDoubleWallSeaBrick, kImpactFloatingFloor, kLiningGeneric}) {
    elements::Setup setup;
    setup.calculation = calculation;
    EnterDimensions(setup, "3,60", "2.7");
    EXPECT_EQ(setup.width_text, "3,60");
    EXPECT_EQ(setup.height_text, "2.7");
    EXPECT_EQ(setup.base.area_text, "");
  }
}

struct FacadeArea {
  const char* width = "";
  const char* height = "";
  const char* area = "";
};

class DimensionsOfAFacade : public testing::TestWithParam<FacadeArea> {};

TEST_P(DimensionsOfAFacade, AreItsArea) {
  elements::Setup setup;
  setup.calculation = kCompositeElement;
  const elements::Setup before = setup;
  EnterDimensions(setup, GetParam().width, GetParam().height);
  EXPECT_EQ(setup.base.area_text, GetParam().area);
  EXPECT_EQ(setup.width_text, before.width_text);
  EXPECT_EQ(setup.height_text, before.height_text);
}

INSTANTIATE_TEST_SUITE_P(Areas, DimensionsOfAFacade,
                         testing::Values(FacadeArea{"2,5", "3", "7,5"}, FacadeArea{"2.5", "3.0", "7,5"},
                                         FacadeArea{"4", "3", "12,0"}, FacadeArea{"0,5", "0,5", "0,2"},
                                         FacadeArea{"0,5", "0,7", "0,4"}, FacadeArea{"1E1", "2", "20,0"}));

TEST(Dimensions, WithoutACalculationAreThoseOfAnElement) {
  elements::Setup setup;
  EnterDimensions(setup, "5", "3");
  EXPECT_EQ(setup.width_text, "5");
  EXPECT_EQ(setup.height_text, "3");
}

}  // namespace
}  // namespace velmar::calculation
