#include "calculation/edits/element_choice.h"

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

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

}  // namespace
}  // namespace velmar::calculation
