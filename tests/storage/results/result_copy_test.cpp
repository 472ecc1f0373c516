#include "storage/results/result_copy.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

TEST(CopyOf, HasTheFieldsInTheirOrder) {
  SavedResult result;
  result.name = "Parete";
  result.rating = 43;
  result.area_m2 = 10.5;
  result.bands[0] = 30.25;
  result.bands[20] = 61;
  result.adaptation = -1;
  const CopiedTable table = CopyOf(ResultTable::kAirborne, result);
  ASSERT_EQ(table.size(), 8U);
  EXPECT_EQ(table[0], (std::vector<MessageLine>{{MessageRow{371}}, {"Parete"}}));
  EXPECT_EQ(table[2], (std::vector<MessageLine>{{MessageRow{372}, " [dB]"}, {"43"}}));
  EXPECT_EQ(table[3], (std::vector<MessageLine>{{MessageRow{373}, " [m²]"}, {"10,5"}}));
  EXPECT_EQ(table[4].front(), (MessageLine{"50"}));
  EXPECT_EQ(table[4].back(), (MessageLine{"5000"}));
  EXPECT_EQ(table[5].front(), (MessageLine{"30,2"}));
  EXPECT_EQ(table[5][1], (MessageLine{""}));
  EXPECT_EQ(table[6], (std::vector<MessageLine>{{"C [dB]"}, {"Ctr [dB]"}}));
  EXPECT_EQ(table[7], (std::vector<MessageLine>{{"-1"}, {""}}));
  EXPECT_EQ(CopyOf(ResultTable::kImpact, result)[6],
            (std::vector<MessageLine>{{"Ci [dB]"}, {"C50_5000 [dB]"}}));
}

}  // namespace
}  // namespace velmar::storage
