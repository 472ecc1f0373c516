#include "presentation/drawing/chart_marks.h"

#include <QFont>

#include <gtest/gtest.h>

#include "acoustics/impact_rating.h"
#include "presentation/drawing/colours.h"
#include "tests/presentation/drawing/catalogue_words.h"
#include "tests/presentation/drawing/picture.h"

namespace velmar::presentation {
namespace {

const QRectF kArea(0.0, 0.0, 600.0, 400.0);

Picture Drawn(const CurveChart& chart) {
  return {kArea.size().toSize(),
          [&](QPainter& painter, const QRectF& area) { DrawCurveChart(painter, area, chart); }, 4};
}

QPointF PointOf(const CurveChart& chart, double band, double level) {
  return LayoutOf(kArea, chart, QFont()).At(band, LogicalY(level, RangeOf(chart)));
}

/// A wall of 40 dB in every band: Rw 44 would leave 26 dB of deviations, from 630 Hz on.
CurveChart Wall() {
  CurveChart chart;
  chart.values.fill(40.0);
  chart.shift = 44.0;
  return chart;
}

TEST(DeviationsOf, AreThoseOfTheReferenceCurveShown) {
  EXPECT_EQ(acoustics::SumOf(DeviationsOf(Wall())), 26.0);
  CurveChart floor = Wall();
  floor.reference = acoustics::kImpactReference;
  floor.unfavourable = acoustics::Unfavourable::kAbove;
  floor.shift = 41.0;
  EXPECT_EQ(acoustics::SumOf(DeviationsOf(floor)), 75.0);
  floor.shift.reset();
  EXPECT_EQ(acoustics::SumOf(DeviationsOf(floor)), 0.0);
}

TEST(ChartMarks, ShadeTheUnfavourableBandsAlone) {
  CurveChart chart = Wall();
  const QColor plain = Drawn(chart).At(PointOf(chart, 16.3, 42.2));
  chart.marks.deviations = true;
  const Picture shaded = Drawn(chart);
  EXPECT_EQ(plain, kPaperColour);
  EXPECT_NE(shaded.At(PointOf(chart, 16.3, 42.2)), kPaperColour);
  EXPECT_EQ(shaded.At(PointOf(chart, 6.3, 36.0)), kPaperColour) << "a favourable band";
  EXPECT_EQ(shaded.At(PointOf(chart, 19.6, 42.2)), kPaperColour) << "a band that no rating reads";
}

TEST(ChartMarks, LeaveABandWithoutAValueUnshaded) {
  CurveChart chart = Wall();
  chart.marks.deviations = true;
  chart.values[16] = 0.0;
  EXPECT_EQ(Drawn(chart).At(PointOf(chart, 16.3, 42.2)), kPaperColour);
}

TEST(ChartMarks, TellTheSumWhereItHidesNoCurve) {
  CurveChart floor = Wall();
  floor.unfavourable = acoustics::Unfavourable::kAbove;
  floor.shift = 0.0;
  floor.marks.deviations = true;
  floor.words.deviations = "31,0 dB";
  const QRectF plot = LayoutOf(kArea, floor, QFont()).plot;
  const QRectF right(plot.center(), plot.bottomRight());
  const QRectF upper = right.translated(0.0, -plot.height() / 2.0);
  EXPECT_GT(Drawn(floor).Count(kQuietInkColour, upper), 5);
  EXPECT_EQ(Drawn(floor).Count(kQuietInkColour, right), 0);
  // A bare floor: the higher the frequency, the louder.
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band)
    floor.values[band] = 46.0 + 2.0 * static_cast<double>(band);
  EXPECT_EQ(Drawn(floor).Count(kQuietInkColour, upper), 0);
  EXPECT_GT(Drawn(floor).Count(kQuietInkColour, right), 5);
}

TEST(ChartMarks, MakeBandsOutsideTheRatingPaler) {
  CurveChart chart = Wall();
  chart.shift.reset();
  EXPECT_EQ(Drawn(chart).At(PointOf(chart, 1.0, 40.0)), kCalculatedColour);
  chart.marks.pale_outside = true;
  const Picture pale = Drawn(chart);
  EXPECT_EQ(pale.At(PointOf(chart, 1.0, 40.0)), Paler(kCalculatedColour));
  EXPECT_EQ(pale.At(PointOf(chart, 19.5, 40.0)), Paler(kCalculatedColour));
  EXPECT_EQ(pale.At(PointOf(chart, 3.0, 40.0)), kCalculatedColour);
  EXPECT_EQ(pale.At(PointOf(chart, 18.0, 40.0)), kCalculatedColour);
}

// The curve of Rw 60 stands at 64 dB from 1250 Hz on.
TEST(ChartMarks, DrawTheRequiredRatingAsItsReferenceCurve) {
  CurveChart chart = Wall();
  EXPECT_EQ(Drawn(chart).Count(kRequirementColour), 0);
  chart.marks.required = 60.0;
  const Picture picture = Drawn(chart);
  const QPointF from = PointOf(chart, 15.0, 64.5);
  const QPointF to = PointOf(chart, 17.5, 63.5);
  EXPECT_GT(picture.Count(kRequirementColour, QRectF(from, to)), 20);
}

// The reference curve of the result stands at 56 dB there, below the missed requirement and above the met
// one.
TEST(ChartMarks, NameTheRequirementAwayFromTheReferenceCurve) {
  CurveChart chart = Wall();
  const double reference = chart.reference.back() + *chart.shift;
  const auto words_at = [&chart](double from_db, double to_db) {
    chart.words.required.clear();
    const QRectF place(PointOf(chart, 14.0, to_db), PointOf(chart, 18.0, from_db));
    const int line = Drawn(chart).Count(kRequirementColour, place);
    chart.words.required = "limite";
    return Drawn(chart).Count(kRequirementColour, place) > line;
  };
  for (const double margin : {5.0, -5.0}) {
    chart.marks.required = chart.reference[7] + *chart.shift + margin;
    const double line = reference + margin;
    EXPECT_EQ(words_at(line + 0.6, line + 8.0), margin > 0.0);
    EXPECT_EQ(words_at(line - 8.0, line - 0.6), margin < 0.0);
  }
}

TEST(ChartMarks, LeaveTheFormerCurveBehindThePresentOne) {
  CurveChart chart = Wall();
  chart.marks.former.emplace().fill(55.0);
  const Picture picture = Drawn(chart);
  EXPECT_GT(picture.Count(kFormerColour), 400);
  EXPECT_EQ(picture.At(PointOf(chart, 10.0, 40.0)), kCalculatedColour);
}

TEST(ChartWindow, ShowsItsPartOverTheWholePlot) {
  CurveChart chart = Wall();
  chart.marks.window = {.left = 8.0, .right = 12.0, .bottom = 30.0, .top = 60.0};
  const QRectF plot = PlotArea(kArea, chart, QFont());
  EXPECT_EQ(PointOf(chart, 8.0, 30.0).x(), plot.left());
  EXPECT_EQ(BandAt(plot.topLeft() + QPointF(1.0, 1.0), kArea, chart, QFont()), 8U);
  EXPECT_EQ(BandAt(plot.bottomRight() - QPointF(1.0, 1.0), kArea, chart, QFont()), 12U);
  const Picture picture = Drawn(chart);
  EXPECT_EQ(picture.At(PointOf(chart, 10.5, 40.0)), kCalculatedColour);
  EXPECT_EQ(picture.Count(kCalculatedColour, QRectF(0.0, 0.0, plot.left() - 4.0, 400.0)), 0);
}

}  // namespace
}  // namespace velmar::presentation
