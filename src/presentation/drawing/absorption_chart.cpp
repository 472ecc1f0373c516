#include "presentation/drawing/absorption_chart.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kLowestTop = 1.0;
constexpr double kHighestTop = 1.5;
constexpr double kStep = 0.25;
constexpr double kLineWidth = 1.0;
constexpr double kCurveWidth = 2.0;
constexpr double kDotDiameter = 5.0;
constexpr double kGap = 4.0;
constexpr std::size_t kLastBand = elements::kAbsorptionBandCount - 1;

// Every octave carries its frequency: 125, 250, ... 4000 Hz.
constexpr std::size_t kFirstLabelledBand = 1;
constexpr std::size_t kLabelStep = 3;

struct Layout {
  QRectF plot{};
  double em = 0.0;
  double top = kLowestTop;

  QPointF At(std::size_t band, double value) const {
    const double x = static_cast<double>(band) / static_cast<double>(kLastBand);
    return {plot.left() + x * plot.width(), plot.bottom() - value / top * plot.height()};
  }
};

Layout LayoutOf(const QRectF& area, const AbsorptionChart& chart, const QFont& font) {
  Layout layout;
  layout.em = PixelsOf(font);
  layout.top = AbsorptionTop(chart);
  const double left = WidthOf(QStringLiteral("0,75"), PixelFont(font, layout.em)) + 3.0 * kGap;
  const double lines = chart.frequency_axis.empty() ? 1.4 : 2.8;
  layout.plot = area.adjusted(left, 1.7 * layout.em, -1.2 * layout.em, -lines * layout.em - kGap);
  return layout;
}

/// The steps of the scale up to `top`.
int Steps(double top) { return static_cast<int>(std::lround(top / kStep)); }

void DrawGrid(QPainter& painter, const Layout& layout) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (std::size_t band = 0; band <= kLastBand; ++band) {
    painter.setPen(QPen(kVerticalGridColour, kLineWidth));
    painter.drawLine(layout.At(band, 0.0), layout.At(band, layout.top));
  }
  for (int step = 1; step <= Steps(layout.top); ++step) {
    const double value = step * kStep;
    painter.setPen(QPen(kHorizontalGridColour, kLineWidth));
    painter.drawLine(layout.At(0, value), layout.At(kLastBand, value));
  }
  painter.setPen(QPen(kAxisColour, kLineWidth));
  painter.drawLine(layout.At(0, 0.0), layout.At(kLastBand, 0.0));
  painter.drawLine(layout.At(0, 0.0), layout.At(0, layout.top));
}

void DrawLabels(QPainter& painter, const QRectF& area, const Layout& layout, const AbsorptionChart& chart) {
  const double em = layout.em;
  painter.setPen(kInkColour);
  for (int step = 0; step <= Steps(layout.top); ++step) {
    const double value = step * kStep;
    const QPointF foot = layout.At(0, value);
    const QRectF box(area.left(), foot.y() - em, foot.x() - kGap - area.left(), 2.0 * em);
    DrawTextIn(painter, box, Qt::AlignRight | Qt::AlignVCenter, QString::number(value).replace('.', ','));
  }
  for (std::size_t band = kFirstLabelledBand; band <= kLastBand; band += kLabelStep) {
    const QPointF foot = layout.At(band, 0.0);
    const QRectF box(foot.x() - 3.0 * em, foot.y() + kGap, 6.0 * em, 1.4 * em);
    DrawTextIn(painter, box, Qt::AlignHCenter | Qt::AlignTop,
               QString::number(elements::kAbsorptionBandCentres.at(band)));
  }
  const QRectF symbol(area.left(), area.top(), layout.plot.left() - kGap - area.left(), 1.4 * em);
  DrawTextIn(painter, symbol, Qt::AlignRight | Qt::AlignTop, QStringLiteral("α"));
  const QRectF axis(layout.plot.left(), area.bottom() - 1.5 * em, layout.plot.width(), 1.4 * em);
  DrawTextIn(painter, axis, Qt::AlignCenter, FromWords(chart.frequency_axis));
}

void DrawCurve(QPainter& painter, const Layout& layout, const AbsorptionChart& chart) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kCalculatedColour, kCurveWidth, Qt::SolidLine, Qt::RoundCap));
  for (std::size_t band = 0; band < kLastBand; ++band) {
    if (chart.values[band] && chart.values[band + 1])
      painter.drawLine(layout.At(band, *chart.values[band]), layout.At(band + 1, *chart.values[band + 1]));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(kCalculatedColour);
  for (std::size_t band = 0; band <= kLastBand; ++band) {
    if (chart.values[band])
      painter.drawEllipse(layout.At(band, *chart.values[band]), kDotDiameter / 2.0, kDotDiameter / 2.0);
  }
}

}  // namespace

double AbsorptionTop(const AbsorptionChart& chart) {
  double highest = kLowestTop;
  for (const std::optional<double>& value : chart.values) highest = std::max(highest, value.value_or(0.0));
  return std::min(std::ceil(highest / kStep) * kStep, kHighestTop);
}

QPointF AbsorptionPoint(const QRectF& area, const AbsorptionChart& chart, const QFont& font, std::size_t band,
                        double value) {
  return LayoutOf(area, chart, font).At(band, value);
}

void DrawAbsorptionChart(QPainter& painter, const QRectF& area, const AbsorptionChart& chart) {
  painter.save();
  painter.fillRect(area, kPaperColour);
  const Layout layout = LayoutOf(area, chart, painter.font());
  painter.setFont(PixelFont(painter.font(), layout.em));
  DrawGrid(painter, layout);
  DrawLabels(painter, area, layout, chart);
  painter.setClipRect(area, Qt::IntersectClip);
  DrawCurve(painter, layout, chart);
  painter.restore();
}

}  // namespace velmar::presentation
