#include "presentation/drawing/chart_scale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Every band at 50 dB, no reference curve, scaled to its data.
CurveChart FlatChart() {
  CurveChart chart;
  chart.values.fill(50.0);
  chart.autoscale = true;
  return chart;
}

TEST(ChartRange, IsTenToEightyWithoutAutoscale) {
  CurveChart chart = FlatChart();
  chart.autoscale = false;
  chart.values[4] = 95.0;
  chart.shift = 60.0;
  chart.laboratory.emplace().fill(120.0);
  const ChartRange range = RangeOf(chart);
  EXPECT_DOUBLE_EQ(range.minimum, 10.0);
  EXPECT_DOUBLE_EQ(range.maximum, 80.0);
  EXPECT_THAT(AxisLabels(range), ElementsAre(10, 20, 30, 40, 50, 60, 70, 80));
}

struct Fitted {
  const char* name;
  double lowest;
  double highest;
  double minimum;
  double maximum;
};
class RoundRangeTest : public testing::TestWithParam<Fitted> {};

TEST_P(RoundRangeTest, HasRoundLinesAndKeepsTheCurveOnThePaper) {
  CurveChart chart = FlatChart();
  chart.values.fill(GetParam().lowest);
  chart.values[0] = GetParam().highest;
  const ChartRange range = RangeOf(chart);
  EXPECT_DOUBLE_EQ(range.minimum, GetParam().minimum);
  EXPECT_DOUBLE_EQ(range.maximum, GetParam().maximum);
  EXPECT_GE(LogicalY(GetParam().lowest, range), 10.0);
  EXPECT_LE(LogicalY(GetParam().highest, range), 88.0);
}

INSTANTIATE_TEST_SUITE_P(
    Curves, RoundRangeTest,
    testing::Values(Fitted{"Flat", 50.0, 50.0, 50.0, 57.0}, Fitted{"SteepWall", 31.0, 66.0, 30.0, 65.0},
                    Fitted{"ByTens", 18.3, 71.9, 10.0, 80.0}, Fitted{"ByTwos", 41.2, 52.9, 40.0, 54.0},
                    Fitted{"High", 60.0, 134.0, 60.0, 130.0}, Fitted{"BelowNought", -12.5, 40.0, -20.0, 50.0},
                    Fitted{"Huge", 10.0, 900.0, 0.0, 1400.0}),
    [](const auto& test) { return test.param.name; });

TEST(ChartRange, OfAMeasuredCurveFitsAllItsValuesWhateverBandIsMissing) {
  CurveChart chart = FlatChart();
  chart.fits_values = true;
  chart.values[0] = 21.5;
  chart.values[10] = 0.0;
  chart.values[20] = 66.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 21.5);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 66.0);
  chart.values.fill(0.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 10.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 80.0);
  chart.values[4] = 38.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 38.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 39.0);
}

TEST(ChartRange, OfALiningLooksBetweenItsBandsAtBothCurves) {
  CurveChart chart = FlatChart();
  chart.first_band = 3;
  chart.last_band = 18;
  chart.values[2] = 1.0;
  chart.values[19] = 99.0;
  chart.base.emplace().fill(45.0);
  (*chart.base)[4] = 28.0;
  (*chart.base)[5] = 0.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 25.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 60.0);
}

TEST(ChartRange, KeepsTheWholeReferenceCurveOnThePaper) {
  CurveChart chart = FlatChart();
  chart.shift = 50.0;
  chart.reference.fill(0.0);
  chart.reference[0] = -22.0;
  chart.reference[15] = 11.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 25.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 60.0);
}

TEST(ChartRange, OfNothingIsTenToEighty) {
  CurveChart chart;
  chart.autoscale = true;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 10.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 80.0);
}

TEST(ChartRange, TakesInTheComparedCurvesWhereTheyHaveValues) {
  CurveChart chart = FlatChart();
  chart.laboratory.emplace();
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 50.0);
  (*chart.laboratory)[6] = 41.0;
  chart.in_situ.emplace()[7] = 58.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 40.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 75.0);
}

TEST(AxisLabels, RoundTiesToEven) {
  EXPECT_THAT(AxisLabels({.minimum = 0.0, .maximum = 3.5}), ElementsAre(0, 0, 1, 2, 2, 2, 3, 4));
  EXPECT_THAT(AxisLabels({.minimum = -3.5, .maximum = 0.0}), ElementsAre(-4, -3, -2, -2, -2, -1, 0, 0));
}

TEST(LogicalY, FillsTenToEighty) {
  const ChartRange range{.minimum = 30.0, .maximum = 65.0};
  EXPECT_DOUBLE_EQ(LogicalY(30.0, range), 10.0);
  EXPECT_DOUBLE_EQ(LogicalY(65.0, range), 80.0);
  EXPECT_DOUBLE_EQ(LogicalY(25.0, range), 0.0);
  EXPECT_DOUBLE_EQ(LogicalY(70.0, range), 90.0);
}

struct Walk {
  const char* name;
  std::vector<std::size_t> bands;  ///< that hold a value
  std::size_t first;
  std::size_t last;
  std::vector<ChartSegment> segments;
};

class CurveWalkTest : public testing::TestWithParam<Walk> {};

TEST_P(CurveWalkTest, JoinsTheBandsThatHaveValues) {
  acoustics::Spectrum values{};
  for (const std::size_t band : GetParam().bands) values[band] = 40.0;
  EXPECT_EQ(CurveSegments(values, GetParam().first, GetParam().last), GetParam().segments);
}

INSTANTIATE_TEST_SUITE_P(
    Curves, CurveWalkTest,
    testing::Values(Walk{"Nothing", {}, 0, 20, {}}, Walk{"OneBand", {10}, 0, 20, {}},
                    Walk{"Neighbours", {10, 11}, 0, 20, {{10, 11}}},
                    Walk{"BridgesAGap", {2, 3, 6, 7}, 0, 20, {{2, 3}, {3, 6}, {6, 7}}},
                    Walk{"WholeWidth", {0, 20}, 0, 20, {{0, 20}}},
                    Walk{"LastSegment", {19, 20}, 0, 20, {{19, 20}}},
                    Walk{"LiningLeavesTheOuterBands", {2, 3, 4, 18, 19}, 3, 18, {{3, 4}, {4, 18}}}),
    [](const auto& test) { return test.param.name; });

TEST(DottedBands, StandWhereThereIsAValue) {
  acoustics::Spectrum values{};
  EXPECT_THAT(DottedBands(values, 0, 20), IsEmpty());
  values[2] = values[3] = values[20] = 30.0;
  EXPECT_THAT(DottedBands(values, 0, 20), ElementsAre(2, 3, 20));
  EXPECT_THAT(DottedBands(values, 3, 18), ElementsAre(3));
}

}  // namespace
}  // namespace velmar::presentation
