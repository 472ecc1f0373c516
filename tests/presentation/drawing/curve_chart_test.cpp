#include "presentation/drawing/curve_chart.h"

#include <QFont>

#include <gtest/gtest.h>

#include "acoustics/impact_rating.h"
#include "presentation/drawing/chart_layout.h"
#include "presentation/drawing/chart_scale.h"
#include "presentation/drawing/colours.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/drawing/picture.h"
#include "tests/presentation/sample_setups.h"

namespace velmar::presentation {
namespace {

const QRectF kArea(0.0, 0.0, 600.0, 400.0);

Picture Drawn(const CurveChart& chart) {
  return {kArea.size().toSize(),
          [&](QPainter& painter, const QRectF& area) { DrawCurveChart(painter, area, chart); }, 4};
}

QPointF PointOf(const CurveChart& chart, std::size_t band, double level) {
  return LayoutOf(kArea, chart, QFont()).At(static_cast<double>(band), LogicalY(level, RangeOf(chart)));
}

CurveChart FlatChart(double level = 50.0) {
  CurveChart chart;
  chart.values.fill(level);
  return chart;
}

TEST(DrawCurveChart, PutsADotOnEveryBandWithAValue) {
  CurveChart chart = FlatChart();
  chart.values[7] = 0.0;
  const Picture picture = Drawn(chart);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const QPointF point = PointOf(chart, band, 50.0);
    // Off the line by more than its half width, within the dot.
    EXPECT_EQ(picture.At(point + QPointF(0.0, 2.0)) == kCalculatedColour, band != 7) << band;
    EXPECT_EQ(picture.At(point), kCalculatedColour) << "the line bridges band " << band;
  }
}

TEST(DrawCurveChart, PutsABandOutsideTheRangeBeyondTheEdge) {
  CurveChart chart = FlatChart(95.0);
  EXPECT_EQ(Drawn(chart).Count(kCalculatedColour), 0);
  chart.values.fill(82.0);
  EXPECT_GT(Drawn(chart).Count(kCalculatedColour), 0);
}

TEST(DrawCurveChart, DrawsGridAndReferenceWhenNoBandHasAValue) {
  CurveChart chart;
  chart.autoscale = true;
  chart.shift = 50.0;
  const Picture picture = Drawn(chart);
  EXPECT_EQ(picture.Count(kCalculatedColour), 0);
  EXPECT_GT(picture.Count(kVerticalGridColour), 1000);
  EXPECT_EQ(picture.Count(kReferenceColour, PlotArea(kArea, chart, QFont())) > 20, true);
}

TEST(DrawCurveChart, DrawsOverlaysOnlyWhereAsked) {
  CurveChart chart = FlatChart();
  EXPECT_EQ(Drawn(chart).Count(kLaboratoryColour), 0);
  chart.laboratory.emplace().fill(60.0);
  chart.in_situ.emplace();  // nothing chosen: all bands without a value
  const Picture picture = Drawn(chart);
  EXPECT_GT(picture.Count(kLaboratoryColour), 400);
  EXPECT_EQ(picture.Count(kInSituColour), 0);
}

TEST(DrawCurveChart, DrawsOctavesAsStepsOverTheirThirds) {
  CurveChart chart;
  chart.octaves.emplace();
  for (std::size_t band = 3; band < 9; ++band) chart.octaves->at(band) = band < 6 ? 30.0 : 40.0;
  const Picture picture = Drawn(chart);
  for (const double place : {2.6, 3.0, 4.0, 5.4})  // level from edge to edge of the octave of 125 Hz
    EXPECT_EQ(
        picture.At(PointOf(chart, 0, 30.0) + (PointOf(chart, 1, 30.0) - PointOf(chart, 0, 30.0)) * place),
        kOctavesColour)
        << place;
  const QPointF edge = (PointOf(chart, 5, 35.0) + PointOf(chart, 6, 35.0)) / 2.0;
  EXPECT_EQ(picture.At(edge), kOctavesColour) << "the step between two octaves";
  EXPECT_NE(picture.At(PointOf(chart, 4, 30.0) + QPointF(0.0, 2.0)), kOctavesColour) << "no dots";
  EXPECT_NE(picture.At(PointOf(chart, 10, 40.0)), kOctavesColour) << "no value, no line";
}

TEST(DrawCurveChart, DrawsOctavesOfWhatIsComparedAsStepsToo) {
  CurveChart chart;
  chart.laboratory.emplace();
  chart.laboratory->fill(40.0);
  chart.laboratory_in_octaves = true;
  const Picture picture = Drawn(chart);
  EXPECT_EQ(picture.At(PointOf(chart, 4, 40.0)), kLaboratoryColour);
  EXPECT_NE(picture.At(PointOf(chart, 4, 40.0) + QPointF(0.0, 2.0)), kLaboratoryColour);
}

TEST(DrawCurveChart, KeepsALiningBetweenItsBands) {
  CurveChart chart = FlatChart();
  chart.first_band = 3;
  chart.last_band = 18;
  chart.base.emplace().fill(40.0);
  const Picture picture = Drawn(chart);
  EXPECT_EQ(picture.At(PointOf(chart, 3, 40.0)), kBaseColour);
  EXPECT_NE(picture.At(PointOf(chart, 2, 40.0)), kBaseColour);
  EXPECT_EQ(picture.At(PointOf(chart, 18, 50.0)), kCalculatedColour);
  EXPECT_NE(picture.At(PointOf(chart, 19, 50.0)), kCalculatedColour);
}

TEST(DrawCurveChart, StaysInItsAreaAndPaintsItWhite) {
  const QRectF inner(50.0, 40.0, 300.0, 200.0);
  CurveChart chart = FlatChart(200.0);
  chart.words = EmptyChart(CatalogueWords()).words;
  const Picture picture({400, 300},
                        [&](QPainter& painter, const QRectF&) { DrawCurveChart(painter, inner, chart); });
  EXPECT_EQ(picture.Count(Qt::cyan), 400 * 300 - 300 * 200);
  EXPECT_EQ(picture.At({51.0, 41.0}), kPaperColour);
}

TEST(DrawCurveChart, DrawsNothingIntoAnEmptyArea) {
  const Picture picture({40, 30},
                        [&](QPainter& painter, const QRectF&) { DrawCurveChart(painter, {}, FlatChart()); });
  EXPECT_EQ(picture.Count(Qt::cyan), 40 * 30);
}

TEST(BandAt, FindsTheNearestBand) {
  const CurveChart chart = FlatChart();
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_EQ(BandAt(PointOf(chart, band, 50.0) + QPointF(4.0, 0.0), kArea, chart, QFont()), band);
  }
  EXPECT_EQ(BandAt({1.0, 100.0}, kArea, chart, QFont()), std::nullopt);
  EXPECT_EQ(BandAt(PointOf(chart, 5, 50.0) + QPointF(0.0, 300.0), kArea, chart, QFont()), std::nullopt);
}

TEST(CurveChartOf, TakesBandsAndReferenceFromTheCalculation) {
  const Words words = CatalogueWords();
  elements::Setup setup = samples::PlasteredBrickWall();
  const CurveChart wall = *CurveChartOf(setup, samples::Result(), words);
  EXPECT_EQ(wall.words.level_axis, "Ri [dB]");
  EXPECT_EQ(wall.words.frequency_axis, "Frequenza [Hz]");
  EXPECT_EQ(wall.words.calculated, "Curva teorica");
  EXPECT_EQ(wall.last_band, 20U);
  EXPECT_FALSE(wall.base);

  setup.calculation = elements::Calculation::kImpactFloatingFloor;
  const CurveChart floor = *CurveChartOf(setup, samples::Result(), words);
  EXPECT_EQ(floor.reference, acoustics::kImpactReference);
  EXPECT_EQ(floor.words.level_axis, "Li [dB]");

  const CurveChart lining =
      *CurveChartOf(samples::Lining(elements::Calculation::kCeilingSea), samples::Result(), words);
  EXPECT_EQ(lining.first_band, 3U);
  EXPECT_EQ(lining.last_band, 18U);
  EXPECT_DOUBLE_EQ((*lining.base)[0], 0.0) << "an empty text has no value";
  EXPECT_DOUBLE_EQ((*lining.base)[5], 42.0);
}

TEST(CurveChartOf, GivesNoneWhereThereIsNoCurve) {
  const Words words = CatalogueWords();
  EXPECT_FALSE(
      CurveChartOf(samples::Lining(elements::Calculation::kLiningGeneric), samples::Result(), words));
  EXPECT_FALSE(
      CurveChartOf(samples::Lining(elements::Calculation::kCeilingGeneric), samples::Result(), words));
  elements::Setup facade = samples::FacadeOfNine();
  EXPECT_TRUE(CurveChartOf(facade, samples::Result(), words));
  facade.facade.simplified = true;
  EXPECT_FALSE(CurveChartOf(facade, samples::Result(), words));
  EXPECT_FALSE(CurveChartOf(samples::PlasteredBrickWall(), {}, words));
  EXPECT_FALSE(CurveChartOf({}, samples::Result(), words));
}

TEST(DrawCurveChart, AComparedCurveIsToldByItsDashesToo) {
  CurveChart chart = FlatChart();
  FurtherCurve compared{.name = "Muro", .colour = QColor(0x00, 0x72, 0xB2), .look = CurveLook{Qt::SolidLine}};
  compared.values.fill(30.0);
  chart.further = {compared};
  const int solid = Drawn(chart).Count(compared.colour);
  chart.further[0].look = CurveLook{Qt::DashLine};
  const int dashed = Drawn(chart).Count(compared.colour);
  EXPECT_LT(dashed, solid * 9 / 10);
  EXPECT_GT(dashed, solid / 4);
}

TEST(DrawCurveChart, AComparedCurveOfOctavesHasSteps) {
  CurveChart chart = FlatChart();
  FurtherCurve compared{.name = "Muro",
                        .colour = QColor(0x00, 0x72, 0xB2),
                        .look = CurveLook{Qt::SolidLine},
                        .in_octaves = true};
  for (std::size_t band = 0; band < compared.values.size(); ++band)
    compared.values[band] = 30.0 + 5.0 * static_cast<double>(band / 3);
  chart.further = {compared};
  const Picture picture = Drawn(chart);
  // The step of the second octave goes to half way behind its last third.
  const QPointF last = PointOf(chart, 5, 35.0);
  const QPointF next = PointOf(chart, 6, 35.0);
  EXPECT_EQ(picture.At(last * 0.6 + next * 0.4), compared.colour);
}

}  // namespace
}  // namespace velmar::presentation
