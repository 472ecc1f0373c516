#include "acoustics/range_left.h"

#include <limits>

#include <gtest/gtest.h>

namespace velmar::acoustics {
namespace {

constexpr double kNoEnd = std::numeric_limits<double>::infinity();
const MessageRow kQuantity{3300};
const MessageRow kFrom{3309};
const MessageRow kTo{3310};
const MessageRow kUpTo{3311};
const MessageRow kAtLeast{3312};

std::string Piece(const MessageLine& line, std::size_t place) {
  return std::get<std::string>(line.at(place));
}

TEST(RangeText, NamesTheValueAndBothEnds) {
  EXPECT_EQ(RangeText({MessageRow{195}, 504.04, 80, 400, "kg/m²", kQuantity}),
            (MessageLine{kQuantity, std::string(" = 504 kg/m² ("), kFrom, std::string(" 80 "), kTo,
                         std::string(" 400"), std::string(")")}));
}

TEST(RangeText, NamesTheOneEndThatThereIs) {
  EXPECT_EQ(
      RangeText({MessageRow{210}, 34.25, -kNoEnd, 30, "cm", kQuantity}),
      (MessageLine{kQuantity, std::string(" = 34,2 cm ("), kUpTo, std::string(" 30"), std::string(")")}));
  EXPECT_EQ(
      RangeText({MessageRow{208}, 4, 5, kNoEnd, "cm", kQuantity}),
      (MessageLine{kQuantity, std::string(" = 4 cm ("), kAtLeast, std::string(" 5"), std::string(")")}));
}

// "400 (from 80 to 400)" would say that it lies inside.
TEST(RangeText, RoundsNoValueIntoTheRange) {
  EXPECT_EQ(Piece(RangeText({MessageRow{195}, 400.004, 80, 400, "kg/m²", kQuantity}), 1),
            " = 400,004 kg/m² (");
  EXPECT_EQ(Piece(RangeText({MessageRow{199}, 0.3304, 0.11, 0.33, "m", kQuantity}), 1), " = 0,3304 m (");
  EXPECT_EQ(Piece(RangeText({MessageRow{199}, 0.342, 0.11, 0.33, "m", kQuantity}), 1), " = 0,342 m (");
}

TEST(RangeText, OfAChoiceIsWhatWasChosen) {
  EXPECT_EQ(RangeText({MessageRow{209}, 0, 1, 1, {}, kQuantity}), MessageLine{kQuantity});
}

}  // namespace
}  // namespace velmar::acoustics
