#include "presentation/texts/result_lines.h"

#include <gtest/gtest.h>

namespace velmar::presentation {
namespace {

using elements::Family;

TEST(ResultLine, NamesRatingAndTerms) {
  elements::ResultSet wall;
  wall.rw = 54.0;
  wall.c = -2.0;
  wall.ctr = -6.0;
  EXPECT_EQ(ResultLine(Family::kDouble, wall), "Rw(C; Ctr)= 54,0 (-2; -6) dB");
  elements::ResultSet floor;
  floor.lnw = 58.0;
  floor.ci = 1.0;
  EXPECT_EQ(ResultLine(Family::kImpact, floor), "Lnw(Ci)= 58,0 (1) dB");
}

TEST(ResultLine, LeavesOutWhatWasNotCalculated) {
  elements::ResultSet lining;
  EXPECT_EQ(ResultLine(Family::kLining, lining), "");
  lining.rw = 60.0;
  EXPECT_EQ(ResultLine(Family::kLining, lining), "Rw= 60,0 dB");
}

TEST(ImprovementLine, StandsForLiningsAlone) {
  elements::ResultSet result;
  EXPECT_EQ(ImprovementLine(Family::kCeiling, result), "");
  result.delta_rw = 12.0;
  EXPECT_EQ(ImprovementLine(Family::kCeiling, result), "DRw= 12 dB");
  EXPECT_EQ(ImprovementLine(Family::kDouble, result), "");
}

TEST(FormatTerm, IsWholeAndNeverMinusZero) {
  EXPECT_EQ(FormatTerm(-0.3), "0");
  EXPECT_EQ(FormatTerm(2.5), "2");
  EXPECT_EQ(FormatTerm(std::nullopt), "");
}

TEST(ReferenceLevel, StandsInTheRatedBandsAlone) {
  EXPECT_EQ(ReferenceLevel(Family::kSingle, 52.0, 2), "");
  EXPECT_EQ(ReferenceLevel(Family::kSingle, 52.0, 3), "29");
  EXPECT_EQ(ReferenceLevel(Family::kImpact, 52.0, 18), "32");
  EXPECT_EQ(ReferenceLevel(Family::kSingle, std::nullopt, 5), "");
}

}  // namespace
}  // namespace velmar::presentation
