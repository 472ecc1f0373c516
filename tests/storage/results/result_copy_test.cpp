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
  using Row = std::vector<CopiedField>;
  EXPECT_EQ(table[0], (Row{TextField({MessageRow{371}}), TextField({"Parete"})}));
  EXPECT_EQ(table[2], (Row{TextField({MessageRow{372}, " [dB]"}), NumberField(43)}));
  EXPECT_EQ(table[3], (Row{TextField({MessageRow{373}, " [m²]"}), NumberField(10.5)}));
  EXPECT_EQ(table[3][1].text, MessageLine{"10,5"});
  EXPECT_EQ(table[4].front(), NumberField(50));
  EXPECT_EQ(table[4].back(), NumberField(5000));
  EXPECT_EQ(table[5].front(), (CopiedField{{"30,2"}, 30.2})) << "the number is what the text says";
  EXPECT_EQ(table[5][1], CopiedField{});
  EXPECT_EQ(table[6], (Row{TextField({"C [dB]"}), TextField({"Ctr [dB]"})}));
  EXPECT_EQ(table[7], (Row{NumberField(-1), CopiedField{}}));
  EXPECT_EQ(CopyOf(ResultTable::kImpact, result)[6],
            (Row{TextField({"Ci [dB]"}), TextField({"C50_5000 [dB]"})}));
}

}  // namespace
}  // namespace velmar::storage
