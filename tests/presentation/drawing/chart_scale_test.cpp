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

TEST(ChartRange, FitsTheDataAndNeverLooksAtTheFirstBand) {
  CurveChart chart = FlatChart();
  chart.values[0] = 5.0;
  chart.values[1] = 31.0;
  chart.values[20] = 66.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 31.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 66.0);
}

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
  chart.values[3] = 1.0;
  chart.values[19] = 99.0;
  chart.base.emplace().fill(45.0);
  (*chart.base)[4] = 28.0;
  (*chart.base)[5] = 0.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 28.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 50.0);
}

TEST(ChartRange, TakesTheReferenceInAtTwoPlacesOnly) {
  CurveChart chart = FlatChart();
  chart.reference.fill(0.0);
  chart.shift = 50.0;
  chart.reference[15] = -40.0;  // neither raises nor lowers
  chart.reference[7] = 40.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 51.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 50.0);
  chart.reference[0] = 11.0;
  chart.reference[14] = -7.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 61.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 43.0);
  chart.reference[0] = -30.0;  // does not lower
  chart.reference[14] = 30.0;  // does not raise
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 51.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 50.0);
}

TEST(ChartRange, OfNothingIsOneDecibelHigh) {
  CurveChart chart;
  chart.autoscale = true;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 0.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 1.0);
  chart.shift = 20.0;  // the reference joins in with -3 at 100 Hz and 20 at 2500 Hz: neither counts
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 1.0);
  chart.shift = 40.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 17.0);
}

TEST(ChartRange, StaysAtZeroWhenTheMiddleBandHasNoValue) {
  CurveChart chart = FlatChart();
  chart.values[10] = 0.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 0.0);
  chart.values[10] = 50.0;
  chart.values[9] = 0.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 50.0);
}

TEST(ChartRange, TakesInTheComparedCurvesWhereTheyHaveValues) {
  CurveChart chart = FlatChart();
  chart.laboratory.emplace();
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 50.0);
  (*chart.laboratory)[6] = 41.0;
  chart.in_situ.emplace()[7] = 58.0;
  EXPECT_DOUBLE_EQ(RangeOf(chart).minimum, 41.0);
  EXPECT_DOUBLE_EQ(RangeOf(chart).maximum, 58.0);
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

TEST(FurtherCurves, WidenAFittedScale) {
  CurveChart chart;
  chart.values.fill(40.0);
  chart.autoscale = true;
  FurtherCurve variant{.name = "B"};
  variant.values.fill(45.0);
  variant.values[5] = 61.0;
  variant.values[6] = 0.0;
  chart.further.push_back(variant);
  EXPECT_EQ(RangeOf(chart).maximum, 61.0);
  EXPECT_EQ(RangeOf(chart).minimum, 40.0) << "a band without a value is none";
}

}  // namespace
}  // namespace velmar::presentation
