#include "presentation/drawing/absorption_chart.h"

#include <gtest/gtest.h>

#include "presentation/drawing/colours.h"
#include "tests/presentation/drawing/picture.h"
#include "tests/presentation/drawing/recording_device.h"

namespace velmar::presentation {
namespace {

constexpr QSize kSize(360, 180);
const QRectF kArea{QPointF(), QSizeF(kSize)};

Picture Drawn(const AbsorptionChart& chart, int scale = 1) {
  return Picture(
      kSize, [&](QPainter& painter, const QRectF& area) { DrawAbsorptionChart(painter, area, chart); },
      scale);
}

AbsorptionChart Flat(double value) {
  AbsorptionChart chart;
  chart.values.fill(value);
  chart.frequency_axis = "Frequenza [Hz]";
  return chart;
}

QPointF At(const AbsorptionChart& chart, std::size_t band, double value) {
  return AbsorptionPoint(kArea, chart, QFont(), band, value);
}

TEST(AbsorptionChart, DrawsEveryBandAtItsValue) {
  const AbsorptionChart chart = Flat(0.6);
  for (const int scale : {1, 2}) {
    const Picture picture = Drawn(chart, scale);
    for (std::size_t band = 0; band < chart.values.size(); ++band)
      EXPECT_EQ(picture.At(At(chart, band, 0.6)), kCalculatedColour) << band;
  }
}

TEST(AbsorptionChart, ABandWithoutAValueLeavesAGap) {
  AbsorptionChart chart = Flat(0.6);
  const QPointF beside = (At(chart, 6, 0.6) + At(chart, 7, 0.6)) / 2.0;
  EXPECT_EQ(Drawn(chart).At(beside), kCalculatedColour);
  chart.values[7].reset();
  const Picture picture = Drawn(chart);
  EXPECT_NE(picture.At(At(chart, 7, 0.6)), kCalculatedColour);
  EXPECT_NE(picture.At(beside), kCalculatedColour);
  EXPECT_EQ(picture.At(At(chart, 6, 0.6)), kCalculatedColour);
}

TEST(AbsorptionChart, ASingleBandIsADot) {
  AbsorptionChart chart;
  chart.values[3] = 0.4;
  const Picture picture = Drawn(chart);
  EXPECT_EQ(picture.At(At(chart, 3, 0.4)), kCalculatedColour);
  EXPECT_LT(picture.Count(kCalculatedColour), 40);
}

TEST(AbsorptionChart, AnEmptyOneHasAxesAndNoCurve) {
  const Picture picture = Drawn(AbsorptionChart{});
  EXPECT_EQ(picture.Count(kCalculatedColour), 0);
  EXPECT_GT(picture.Count(kAxisColour), 300);
}

TEST(AbsorptionChart, TheScaleGrowsWithTheValuesUpTo1Point5) {
  EXPECT_EQ(AbsorptionTop(AbsorptionChart{}), 1.0);
  EXPECT_EQ(AbsorptionTop(Flat(1.0)), 1.0);
  EXPECT_EQ(AbsorptionTop(Flat(1.01)), 1.25);
  EXPECT_EQ(AbsorptionTop(Flat(1.25)), 1.25);
  EXPECT_EQ(AbsorptionTop(Flat(1.3)), 1.5);
  EXPECT_EQ(AbsorptionTop(Flat(7.0)), 1.5);
}

TEST(AbsorptionChart, SaysTheOctavesTheScaleAndTheAxis) {
  RecordingDevice device(kSize);
  QPainter painter(&device);
  DrawAbsorptionChart(painter, kArea, Flat(1.4));
  painter.end();
  for (const char* text : {"125", "4000", "0,25", "1,5", "α", "Frequenza [Hz]"})
    EXPECT_TRUE(device.Says(QString::fromUtf8(text))) << text;
}

TEST(AbsorptionChart, StaysWithinItsArea) {
  AbsorptionChart chart = Flat(1.5);
  chart.values[0] = 9.0;  // off the scale
  const QRectF inner(40, 30, 280, 130);
  const Picture picture(
      kSize, [&](QPainter& painter, const QRectF&) { DrawAbsorptionChart(painter, inner, chart); });
  EXPECT_EQ(picture.Count(Qt::cyan), kSize.width() * kSize.height() - 280 * 130);
}

}  // namespace
}  // namespace velmar::presentation
