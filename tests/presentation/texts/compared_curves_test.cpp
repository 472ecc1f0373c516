#include "presentation/texts/compared_curves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/message_rows.h"

namespace velmar::presentation {
namespace {

using testing::ElementsAre;

std::string InEnglish(MessageRow row) {
  if (row == kComparisonTitleRow) return "Comparison";
  if (row == kComparedLevelsRow) return "Levels";
  if (row == kComparedDifferencesRow) return "Differences from curve";
  if (row == kFrequencyRow) return "f";
  if (row == kCurveNumberRow) return "No.";
  if (row == kCurveHeadingRow) return "Curve";
  return {};
}

ComparedCurve Curve(const std::string& name, double level, std::optional<double> rating) {
  ComparedCurve curve{.name = name, .symbol = "Rw", .rating = rating};
  curve.levels.fill(level);
  return curve;
}

TEST(ComparedCurves, DifferencesAreThoseOfTheBandsThatBothKnow) {
  ComparedCurve wall = Curve("wall", 45.5, 50);
  ComparedCurve other = Curve("other", 40.0, 44);
  other.levels[4] = 0.0;
  wall.levels[7] = 0.0;
  const BandDifferences differences = DifferencesOf(wall, other);
  EXPECT_EQ(differences[3], 5.5);
  EXPECT_EQ(differences[4], std::nullopt);
  EXPECT_EQ(differences[7], std::nullopt);
  EXPECT_EQ(RatingDifference(wall, other), 6.0);
}

TEST(ComparedCurves, RatingsOfDifferentKindsHaveNoDifference) {
  ComparedCurve in_situ = Curve("in situ", 40, 44);
  in_situ.symbol = "R'w";
  EXPECT_EQ(RatingDifference(Curve("wall", 45, 50), in_situ), std::nullopt);
  EXPECT_EQ(RatingCell(in_situ, false), "R'w 44");
  EXPECT_EQ(RatingCell(Curve("wall", 45, 50.5), false), "50,5");
  EXPECT_EQ(RatingCell(Curve("wall", 45, std::nullopt), false), "–");
}

TEST(ComparedCurves, TermsHaveTheirSign) {
  EXPECT_EQ(SignedCell(-5.0), "-5");
  EXPECT_EQ(SignedCell(2.0), "+2");
  EXPECT_EQ(SignedCell(-0.04, 1), "0,0");
  EXPECT_EQ(SignedCell(1.25, 1), "+1,2");
  EXPECT_EQ(SignedCell(std::nullopt), "–");
}

TEST(ComparedCurves, AReportTellsRatingsLevelsAndDifferences) {
  ComparedCurve wall = Curve("wall", 45.5, 50);
  wall.term = -1;
  wall.other_term = -5;
  ComparedCurve other = Curve("other", 0.0, 44);
  other.levels[10] = 40.0;
  CalculationData data;
  AddComparison(data, {.curves = {wall, other}, .against = 0}, InEnglish);
  ASSERT_EQ(data.tables.size(), 3U);
  EXPECT_EQ(data.tables[0].title, "Comparison");
  EXPECT_THAT(data.tables[0].heads, ElementsAre("No.", "Curve", "Rw [dB]", "C [dB]", "Ctr [dB]", "Δ [dB]"));
  EXPECT_THAT(data.tables[0].rows, ElementsAre(ElementsAre("1", "wall", "50", "-1", "-5", "–"),
                                               ElementsAre("2", "other", "44", "–", "–", "-6")));
  ASSERT_EQ(data.tables[1].rows.size(), 21U);
  EXPECT_THAT(data.tables[1].rows[10], ElementsAre("500", "45,5", "40,0"));
  EXPECT_THAT(data.tables[1].rows[11], ElementsAre("630", "45,5", "–"));
  EXPECT_EQ(data.tables[2].title, "Differences from curve 1 (wall) [dB]");
  EXPECT_THAT(data.tables[2].heads, ElementsAre("f", "2 - 1"));
  EXPECT_THAT(data.tables[2].rows, ElementsAre(ElementsAre("500", "-5,5")));
}

TEST(ComparedCurves, WithoutAChosenCurveThereAreNoDifferences) {
  CalculationData data;
  AddComparison(data, {.curves = {Curve("a", 40, 44), Curve("b", 41, 45)}}, InEnglish);
  ASSERT_EQ(data.tables.size(), 2U);
  EXPECT_THAT(data.tables[0].heads, ElementsAre("No.", "Curve", "Rw [dB]", "C [dB]", "Ctr [dB]"));
}

TEST(ComparedCurves, OneCurveIsNoComparison) {
  CalculationData data;
  AddComparison(data, {.curves = {Curve("a", 40, 44)}}, InEnglish);
  EXPECT_TRUE(data.tables.empty());
}

TEST(ComparedCurves, AResultIsItsCurveWithItsNumbers) {
  elements::ResultSet result;
  EXPECT_EQ(ComparedResult("x", result, elements::Calculation::kSingleWallGeneric), std::nullopt);
  result.spectrum.emplace().fill(50.0);
  result.rw = 51;
  result.c = -2;
  result.ctr = -6;
  const auto wall = ComparedResult("x", result, elements::Calculation::kSingleWallGeneric);
  ASSERT_TRUE(wall);
  EXPECT_EQ(wall->symbol, "Rw");
  EXPECT_EQ(wall->rating, 51.0);
  EXPECT_EQ(wall->term, -2.0);
  EXPECT_EQ(wall->other_term, -6.0);
  result.lnw = 70;
  result.ci = -11;
  const auto floor = ComparedResult("x", result, elements::Calculation::kImpactFloatingFloor);
  EXPECT_EQ(floor->symbol, "Ln,w");
  EXPECT_EQ(floor->rating, 70.0);
  EXPECT_EQ(floor->term, -11.0);
  EXPECT_EQ(floor->other_term, std::nullopt);
}

// 50 dB in every band: the reference curve at Rw 50 leaves 26 dB of unfavourable deviations, at 51 it would
// be 35 dB (ISO 717-1).
TEST(ComparedCurves, ALiningIsRatedWithItsBase) {
  elements::ResultSet result;
  result.spectrum.emplace().fill(50.0);
  result.rw = 43;
  result.c = 9;
  const auto lining = ComparedResult("x", result, elements::Calculation::kLiningCalibel);
  ASSERT_TRUE(lining);
  EXPECT_EQ(lining->rating, 50.0);
  EXPECT_EQ(lining->term, 0.0);
}

}  // namespace
}  // namespace velmar::presentation
