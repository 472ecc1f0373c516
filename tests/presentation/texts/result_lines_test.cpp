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

// A wall that takes 40 dB from every band, and a floor of 50 dB in every band.
TEST(FurtherNumbersLine, SaysWhatLiesBeyondTheRatedBands) {
  elements::ResultSet wall;
  wall.spectrum.emplace().fill(40.0);
  wall.rw = 44.0;
  EXPECT_EQ(FurtherNumbersLine(elements::Calculation::kSingleWallGeneric, wall),
            "C50-5000= -4; Ctr,50-5000= -4 dB; STC= 40; OITC= 40");
  elements::ResultSet floor;
  floor.spectrum.emplace().fill(50.0);
  floor.lnw = 56.0;
  EXPECT_EQ(FurtherNumbersLine(elements::Calculation::kImpactReinforcedConcrete, floor),
            "CI,50-2500= -8 dB; IIC= 50");
}

TEST(FurtherNumbersLine, LeavesOutWhatHasNoBandsAndSaysNothingOfLinings) {
  elements::ResultSet facade;
  facade.spectrum.emplace().fill(40.0);
  facade.rw = 44.0;
  (*facade.spectrum)[0] = 0.0;
  EXPECT_EQ(FurtherNumbersLine(elements::Calculation::kCompositeElement, facade), "STC= 40; OITC= 40");
  EXPECT_EQ(FurtherNumbersLine(elements::Calculation::kLiningFrame, facade), "");
  EXPECT_EQ(FurtherNumbersLine(elements::Calculation::kSingleWallGeneric, {}), "");
}

TEST(ResultLine, LeavesOutWhatWasNotCalculated) {
  elements::ResultSet lining;
  EXPECT_EQ(ResultLine(Family::kLining, lining), "");
  lining.rw = 60.0;
  EXPECT_EQ(ResultLine(Family::kLining, lining), "Rw= 60,0 dB");
}

TEST(ImprovementLine, StandsForLiningsAndFloors) {
  elements::ResultSet result;
  EXPECT_EQ(ImprovementLine(Family::kCeiling, result), "");
  result.delta_rw = 12.0;
  EXPECT_EQ(ImprovementLine(Family::kCeiling, result), "DRw= 12 dB");
  EXPECT_EQ(ImprovementLine(Family::kDouble, result), "");
  EXPECT_EQ(ImprovementLine(Family::kImpact, result), "");
  result.delta_lnw = 21.34;
  EXPECT_EQ(ImprovementLine(Family::kImpact, result), "DLw= 21,3 dB");
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
