#include "presentation/texts/results_table.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

using elements::Calculation;

/// The few rows that the table needs.
std::string Say(MessageRow row) {
  switch (row.number) {
    case 72:
      return "Frequenza [Hz]";
    case 287:
      return "Ri [dB]";
    case 288:
      return "Li [dB]";
    case 289:
      return "Rif [dB]";
    default:
      return {};
  }
}

elements::Setup Chosen(Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  return setup;
}

elements::ResultSet Airborne() {
  elements::ResultSet result;
  result.spectrum.emplace();
  for (std::size_t i = 0; i < acoustics::kBandCount; ++i) {
    (*result.spectrum)[i] = 30.0 + static_cast<double>(i) + 0.25;
  }
  result.shift = 52.0;
  result.rw = 48.0;
  result.c = -2.0;
  result.ctr = -6.0;
  return result;
}

elements::ResultSet Impact() {
  elements::ResultSet result;
  result.spectrum.emplace().fill(61.35);
  result.shift = 60.0;
  result.lnw = 58.0;
  result.ci = 1.4;
  return result;
}

TEST(ResultsTable, OfAWallHasAllBandsAndRatings) {
  for (const Calculation calculation :
       {Calculation::kSingleWallBrick, Calculation::kSingleWallSea, Calculation::kDoubleWallGeneric,
        Calculation::kLightWallIsolated, Calculation::kDoubleWallSeaBrick, Calculation::kCompositeElement}) {
    const ResultsTable table = ResultsTableOf(Chosen(calculation), Airborne(), Say);
    EXPECT_EQ(table.frequency_heading, "Frequenza [Hz]");
    EXPECT_EQ(table.value_heading, "Ri [dB]");
    EXPECT_EQ(table.rows[0], (ResultsTableRow{"50", "30,2", "", true})) << "a tie goes to the even digit";
    EXPECT_EQ(table.rows[3], (ResultsTableRow{"100", "33,2", "29", true}));
    EXPECT_EQ(table.rows[18], (ResultsTableRow{"3150", "48,2", "52", true}));
    EXPECT_EQ(table.rows[20], (ResultsTableRow{"5000", "50,2", "", true}));
    EXPECT_EQ(table.rows[21], (ResultsTableRow{"Rw [dB]", "48,0", "", true}));
    EXPECT_EQ(table.rows[22], (ResultsTableRow{"C [dB]", "-2", "", true}));
    EXPECT_EQ(table.rows[23], (ResultsTableRow{"Ctr [dB]", "-6", "", true}));
  }
}

TEST(ResultsTable, OfAFloorShowsNoCtr) {
  const ResultsTable table = ResultsTableOf(Chosen(Calculation::kImpactFloatingFloor), Impact(), Say);
  EXPECT_EQ(table.value_heading, "Li [dB]");
  EXPECT_EQ(table.rows[3], (ResultsTableRow{"100", "61,4", "60", true}));
  EXPECT_EQ(table.rows[18].reference, "40");
  EXPECT_EQ(table.rows[21], (ResultsTableRow{"Lnw [dB]", "58,0", "", true}));
  EXPECT_EQ(table.rows[22], (ResultsTableRow{"Ci [dB]", "1", "", true}));
  EXPECT_FALSE(table.rows[23].visible);
  EXPECT_TRUE(ClipboardText(table).ends_with("Ci [dB]\t1\n\t\n")) << "the hidden row is an empty pair";
}

TEST(ResultsTable, OfASimplifiedFacadeHasRatingsAlone) {
  elements::Setup setup = Chosen(Calculation::kCompositeElement);
  setup.facade.simplified = true;
  elements::ResultSet result = Airborne();
  result.spectrum.reset();
  result.shift.reset();
  const ResultsTable table = ResultsTableOf(setup, result, Say);
  for (std::size_t i = 0; i < acoustics::kBandCount; ++i) EXPECT_FALSE(table.rows[i].visible);
  EXPECT_EQ(table.rows[21].value, "48,0");
}

TEST(ResultsTable, OfALiningHasTheRatedBands) {
  for (const Calculation calculation : {Calculation::kLiningFrame, Calculation::kCeilingSea}) {
    const ResultsTable table = ResultsTableOf(Chosen(calculation), Airborne(), Say);
    EXPECT_FALSE(table.rows[2].visible);
    EXPECT_EQ(table.rows[3].title, "100");
    EXPECT_EQ(table.rows[18].title, "3150");
    EXPECT_FALSE(table.rows[19].visible);
    EXPECT_EQ(table.rows[23].value, "-6");
  }
}

TEST(ResultsTable, OfAGenericLiningHasNoBands) {
  elements::ResultSet result;
  result.rw = 58.0;
  result.delta_rw = 7.0;
  const ResultsTable table = ResultsTableOf(Chosen(Calculation::kCeilingGeneric), result, Say);
  for (std::size_t i = 0; i < acoustics::kBandCount; ++i) EXPECT_FALSE(table.rows[i].visible);
  EXPECT_EQ(table.rows[21].value, "58,0");
  EXPECT_EQ(table.rows[22].value, "") << "a term that was not calculated is no zero";
}

TEST(ResultsTable, IsEmptyBeforeAChoice) {
  for (const ResultsTableRow& row : ResultsTableOf({}, Airborne(), Say).rows) EXPECT_FALSE(row.visible);
}

TEST(ClipboardText, HoldsTheHeadingAndTwentyFourRows) {
  const std::string text =
      ClipboardText(ResultsTableOf(Chosen(Calculation::kSingleWallBrick), Airborne(), Say));
  EXPECT_EQ(std::ranges::count(text, '\n'), 25);
  EXPECT_TRUE(
      text.starts_with("Frequenza [Hz]\tRi [dB]\tRif [dB]\n50\t30,2\n63\t31,2\n80\t32,2\n"
                       "100\t33,2\t29\n125\t34,2\t32\n"))
      << text;
  EXPECT_TRUE(
      text.ends_with("3150\t48,2\t52\n4000\t49,2\n5000\t50,2\nRw [dB]\t48,0\nC [dB]\t-2\nCtr [dB]\t-6\n"))
      << text;
}

}  // namespace
}  // namespace velmar::presentation
