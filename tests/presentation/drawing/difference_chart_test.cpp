#include "presentation/drawing/difference_chart.h"

#include <gtest/gtest.h>

#include "presentation/drawing/colours.h"
#include "tests/presentation/drawing/picture.h"
#include "tests/presentation/drawing/recording_device.h"

namespace velmar::presentation {
namespace {

constexpr QSize kSize(360, 160);
const QRectF kArea{QPointF(), QSizeF(kSize)};
constexpr QColor kBlue{0x00, 0x72, 0xB2};

DifferenceChart With(double difference_db) {
  DifferenceChart chart;
  chart.zero = {kCalculatedColour};
  DifferenceChart::Curve curve;
  curve.differences_db.fill(difference_db);
  curve.look = {kBlue, {Qt::SolidLine, CurveMark::kDot}};
  chart.curves = {curve};
  chart.level_axis = "Differenza [dB]";
  return chart;
}

Picture Drawn(const DifferenceChart& chart) {
  return {kSize, [&](QPainter& painter, const QRectF& area) { DrawDifferenceChart(painter, area, chart); },
          2};
}

QPointF At(const DifferenceChart& chart, std::size_t band, double difference) {
  return DifferencePoint(kArea, chart, QFont(), band, difference);
}

TEST(DifferenceChart, ItsScaleHoldsEveryDifference) {
  EXPECT_EQ(DifferenceTop({}), 5.0);
  EXPECT_EQ(DifferenceTop(With(-5.0)), 5.0);
  EXPECT_EQ(DifferenceTop(With(5.1)), 10.0);
  EXPECT_EQ(DifferenceTop(With(-23.0)), 30.0);
}

TEST(DifferenceChart, DrawsEveryBandAtItsDifferenceAndTheOtherCurveAtZero) {
  const DifferenceChart chart = With(-3.0);
  const Picture picture = Drawn(chart);
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_EQ(picture.At(At(chart, band, -3.0)), kBlue) << band;
    EXPECT_EQ(picture.At(At(chart, band, 0.0)), kCalculatedColour) << band;
  }
  EXPECT_GT(At(chart, 0, -3.0).y(), At(chart, 0, 0.0).y()) << "a curve that lies lower stands lower";
}

TEST(DifferenceChart, ABandWithoutADifferenceIsBridgedWithoutADot) {
  DifferenceChart chart = With(2.0);
  chart.curves[0].differences_db[10].reset();
  const Picture picture = Drawn(chart);
  const QPointF bridged = At(chart, 10, 2.0);
  EXPECT_EQ(picture.At(bridged), kBlue);
  EXPECT_NE(picture.At(bridged + QPointF(0.0, 1.5)), kBlue);
  EXPECT_EQ(picture.At(At(chart, 9, 2.0) + QPointF(0.0, 1.5)), kBlue);
}

TEST(DifferenceChart, SaysItsScale) {
  RecordingDevice device(kSize);
  QPainter painter(&device);
  DrawDifferenceChart(painter, kArea, With(7.0));
  for (const char* text : {"+10", "−10", "+5", "−5", "Differenza [dB]", "500"})
    EXPECT_TRUE(device.Says(QString::fromUtf8(text))) << text;
}

}  // namespace
}  // namespace velmar::presentation
