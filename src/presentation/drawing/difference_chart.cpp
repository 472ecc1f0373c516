#include "presentation/drawing/difference_chart.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kLineWidth = 1.0;
constexpr double kCurveWidth = 2.0;
constexpr double kGap = 4.0;
constexpr double kTens = 10.0;
constexpr double kHalfBand = 0.5;
constexpr std::size_t kLastBand = acoustics::kBandCount - 1;
// Every octave carries its frequency: 63, 125, ... 4000 Hz.
constexpr std::size_t kFirstLabelledBand = 1;
constexpr std::size_t kLabelStep = 3;

struct Layout {
  QRectF plot{};
  double em = 0.0;
  double top = 0.0;

  QPointF At(double band, double difference) const {
    return {plot.left() + plot.width() * band / static_cast<double>(kLastBand),
            plot.center().y() - difference / top * plot.height() / 2.0};
  }
};

Layout LayoutOf(const QRectF& area, const DifferenceChart& chart, const QFont& font) {
  Layout layout;
  layout.em = PixelsOf(font);
  layout.top = DifferenceTop(chart);
  const double left = WidthOf(QStringLiteral("−00"), PixelFont(font, layout.em)) + 3.0 * kGap;
  const double above = chart.level_axis.empty() ? 0.7 : 1.7;
  layout.plot = area.adjusted(left, above * layout.em, -1.2 * layout.em, -1.4 * layout.em - kGap);
  return layout;
}

void DrawGrid(QPainter& painter, const Layout& layout, const ComparedLook& zero) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(kVerticalGridColour, kLineWidth));
  for (std::size_t band = 0; band <= kLastBand; ++band) {
    const auto x = static_cast<double>(band);
    painter.drawLine(layout.At(x, -layout.top), layout.At(x, layout.top));
  }
  painter.setPen(QPen(kHorizontalGridColour, kLineWidth));
  for (const double part : {-1.0, -0.5, 0.5, 1.0})
    painter.drawLine(layout.At(0.0, part * layout.top), layout.At(kLastBand, part * layout.top));
  painter.setPen(QPen(zero.colour, kCurveWidth, zero.look.dashes));
  painter.drawLine(layout.At(0.0, 0.0), layout.At(kLastBand, 0.0));
}

void DrawLabels(QPainter& painter, const QRectF& area, const Layout& layout, const DifferenceChart& chart) {
  const double em = layout.em;
  painter.setPen(kInkColour);
  for (const double part : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
    const double value = part * layout.top;
    const QPointF foot = layout.At(0.0, value);
    const QRectF box(area.left(), foot.y() - em, foot.x() - kGap - area.left(), 2.0 * em);
    QString text = QString::number(value).replace('.', ',').replace('-', QChar(0x2212));
    if (value > 0.0) text.prepend('+');
    DrawTextIn(painter, box, Qt::AlignRight | Qt::AlignVCenter, text);
  }
  for (std::size_t band = kFirstLabelledBand; band <= kLastBand; band += kLabelStep) {
    const QPointF foot = layout.At(static_cast<double>(band), -layout.top);
    const QRectF box(foot.x() - 3.0 * em, foot.y() + kGap, 6.0 * em, 1.4 * em);
    DrawTextIn(painter, box, Qt::AlignHCenter | Qt::AlignTop, QString::number(acoustics::BandCentre(band)));
  }
  const QRectF axis(area.left() + kGap, area.top(), area.width() - 2.0 * kGap, 1.4 * em);
  DrawTextIn(painter, axis, Qt::AlignLeft | Qt::AlignVCenter, FromWords(chart.level_axis));
}

/// Bands without a value are bridged, as in the chart of the levels; octaves are steps.
void DrawCurve(QPainter& painter, const Layout& layout, const DifferenceChart::Curve& curve) {
  QPolygonF line;
  QPolygonF dots;
  for (std::size_t band = 0; band <= kLastBand; ++band) {
    const std::optional<double>& difference = curve.differences_db.at(band);
    if (!difference) continue;
    const auto x = static_cast<double>(band);
    if (curve.in_octaves) {
      line << layout.At(std::max(x - kHalfBand, 0.0), *difference)
           << layout.At(std::min(x + kHalfBand, static_cast<double>(kLastBand)), *difference);
    } else {
      dots << layout.At(x, *difference);
    }
  }
  painter.setPen(QPen(curve.look.colour, kCurveWidth, curve.look.look.dashes, Qt::FlatCap, Qt::RoundJoin));
  painter.drawPolyline(curve.in_octaves ? line : dots);
  for (const QPointF& dot : std::as_const(dots)) DrawMark(painter, dot, curve.look.look, curve.look.colour);
}

}  // namespace

double DifferenceTop(const DifferenceChart& chart) {
  double largest = 0.0;
  for (const DifferenceChart::Curve& curve : chart.curves) {
    for (const std::optional<double>& difference : curve.differences_db) {
      if (difference && std::isfinite(*difference)) largest = std::max(largest, std::abs(*difference));
    }
  }
  constexpr double kSmallest = 5.0;
  return largest <= kSmallest ? kSmallest : std::ceil(largest / kTens) * kTens;
}

QPointF DifferencePoint(const QRectF& area, const DifferenceChart& chart, const QFont& font, std::size_t band,
                        double difference_db) {
  return LayoutOf(area, chart, font).At(static_cast<double>(band), difference_db);
}

void DrawDifferenceChart(QPainter& painter, const QRectF& area, const DifferenceChart& chart) {
  painter.save();
  painter.fillRect(area, kPaperColour);
  const Layout layout = LayoutOf(area, chart, painter.font());
  painter.setFont(PixelFont(painter.font(), layout.em));
  DrawGrid(painter, layout, chart.zero);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawLabels(painter, area, layout, chart);
  painter.setClipRect(area, Qt::IntersectClip);
  for (const DifferenceChart::Curve& curve : chart.curves) DrawCurve(painter, layout, curve);
  painter.restore();
}

}  // namespace velmar::presentation
