#include "presentation/drawing/curve_chart.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "acoustics/bands.h"
#include "presentation/drawing/chart_layout.h"
#include "presentation/drawing/chart_scale.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kGridWidth = 1.0;
constexpr double kReferenceWidth = 1.0;
constexpr double kCurveWidth = 2.0;
constexpr double kDotDiameter = 6.0;
constexpr double kFurtherWidth = 1.5;
constexpr double kTickLength = 4.0;

// Every third band carries its frequency: 63, 125, ... 4000 Hz.
constexpr std::size_t kFirstLabelledBand = 1;
constexpr std::size_t kLabelStep = 3;

void DrawGrid(QPainter& painter, const ChartLayout& layout) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(kVerticalGridColour, kGridWidth));
  for (int band = 1; band <= 19; ++band) {
    painter.drawLine(layout.At(band, 0.0), layout.At(band, kChartHeight));
  }
  painter.setPen(QPen(kHorizontalGridColour, kGridWidth));
  for (int y = 10; y <= 80; y += 10) painter.drawLine(layout.At(0.0, y), layout.At(kChartWidth, y));
}

void DrawAxes(QPainter& painter, const ChartLayout& layout) {
  painter.setPen(QPen(kAxisColour, kGridWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawLine(layout.At(0.0, 0.0), layout.At(kChartWidth, 0.0));
  painter.drawLine(layout.At(0.0, 0.0), layout.At(0.0, kChartHeight));
  for (int band = 1; band <= 19; ++band) {
    const QPointF foot = layout.At(band, 0.0);
    painter.drawLine(foot, foot + QPointF(0.0, kTickLength));
  }
  for (int y = 10; y <= 80; y += 10) {
    const QPointF foot = layout.At(0.0, y);
    painter.drawLine(foot - QPointF(kTickLength, 0.0), foot);
  }
}

void DrawLabels(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range) {
  painter.setPen(kInkColour);
  const double em = layout.text_px;
  const auto labels = AxisLabels(range);
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const QPointF foot = layout.At(0.0, 10.0 + 10.0 * static_cast<double>(i));
    const QRectF box(foot.x() - kTickLength - 3.0 - 4.0 * em, foot.y() - em, 4.0 * em, 2.0 * em);
    DrawTextIn(painter, box, Qt::AlignRight | Qt::AlignVCenter, QString::number(labels[i]));
  }
  for (std::size_t band = kFirstLabelledBand; band < acoustics::kBandCount; band += kLabelStep) {
    const double x = layout.At(static_cast<double>(band), 0.0).x();
    const QRectF box(x - 3.0 * em, layout.frequency_labels.top() + kTickLength, 6.0 * em, 1.3 * em);
    DrawTextIn(painter, box, Qt::AlignHCenter | Qt::AlignTop, QString::number(acoustics::BandCentre(band)));
  }
  DrawTextIn(painter, layout.frequency_axis, Qt::AlignCenter, FromWords(chart.words.frequency_axis));

  painter.save();
  painter.translate(layout.level_axis.center());
  painter.rotate(-90.0);
  const QSizeF turned = layout.level_axis.size().transposed();
  DrawTextIn(painter, QRectF(QPointF(-turned.width() / 2.0, -turned.height() / 2.0), turned), Qt::AlignCenter,
             FromWords(chart.words.level_axis));
  painter.restore();

  painter.setFont(PixelFont(layout.font, em, true));
  DrawTextIn(painter, layout.title, Qt::AlignCenter, FromWords(chart.words.title));
  painter.setFont(layout.font);
}

void DrawReference(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                   const ChartRange& range) {
  if (!chart.shift) return;
  QPolygonF line;
  for (std::size_t i = 0; i < chart.reference.size(); ++i) {
    line << layout.At(static_cast<double>(i + acoustics::kFirstRatedBand),
                      LogicalY(chart.reference[i] + *chart.shift, range));
  }
  painter.setPen(QPen(kReferenceColour, kReferenceWidth));
  painter.drawPolyline(line);
}

void DrawDot(QPainter& painter, const QPointF& centre, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(centre, kDotDiameter / 2.0, kDotDiameter / 2.0);
  painter.setBrush(Qt::NoBrush);
}

void DrawCurve(QPainter& painter, const ChartLayout& layout, const CurveChart& chart, const ChartRange& range,
               const acoustics::Spectrum& values, const QColor& colour) {
  const auto at = [&](std::size_t band) {
    return layout.At(static_cast<double>(band), LogicalY(values[band], range));
  };
  painter.setPen(QPen(colour, kCurveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  for (const ChartSegment& segment : CurveSegments(values, chart.first_band, chart.last_band)) {
    painter.drawLine(at(segment.from), at(segment.to));
  }
  for (const std::size_t band : DottedBands(values, chart.first_band, chart.last_band)) {
    DrawDot(painter, at(band), colour);
  }
}

void DrawFurther(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                 const ChartRange& range, const acoustics::Spectrum& values, const QColor& colour) {
  const auto at = [&](std::size_t band) {
    return layout.At(static_cast<double>(band), LogicalY(values[band], range));
  };
  painter.setPen(QPen(colour, kFurtherWidth, Qt::DashLine));
  for (const ChartSegment& segment : CurveSegments(values, chart.first_band, chart.last_band))
    painter.drawLine(at(segment.from), at(segment.to));
}

void DrawLegend(QPainter& painter, const ChartLayout& layout) {
  for (const LegendEntry& entry : layout.legend) {
    const double y = entry.box.center().y();
    const QPointF begin(entry.box.left(), y);
    const QPointF end(entry.box.left() + 1.6 * layout.text_px, y);
    painter.setPen(QPen(entry.colour, entry.dotted ? kCurveWidth : kReferenceWidth));
    painter.drawLine(begin, end);
    if (entry.dotted) DrawDot(painter, (begin + end) / 2.0, entry.colour);
    painter.setPen(kInkColour);
    DrawTextIn(painter, entry.box, Qt::AlignRight | Qt::AlignVCenter, entry.text);
  }
}

void DrawCurves(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range) {
  painter.save();
  // The surface's edge cuts what runs out above and below; at the sides a dot on the edge stays whole.
  painter.setClipRect(layout.plot.adjusted(-kDotDiameter, 0.0, kDotDiameter, 0.0), Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawReference(painter, layout, chart, range);
  if (chart.base) DrawCurve(painter, layout, chart, range, *chart.base, kBaseColour);
  DrawCurve(painter, layout, chart, range, chart.values, kCalculatedColour);
  if (chart.laboratory) DrawCurve(painter, layout, chart, range, *chart.laboratory, kLaboratoryColour);
  if (chart.in_situ) DrawCurve(painter, layout, chart, range, *chart.in_situ, kInSituColour);
  for (std::size_t i = 0; i < chart.further.size(); ++i)
    DrawFurther(painter, layout, chart, range, chart.further[i].values, FurtherColour(i));
  painter.restore();
}

}  // namespace

void DrawCurveChart(QPainter& painter, const QRectF& area, const CurveChart& chart) {
  if (area.isEmpty()) return;
  painter.save();
  painter.fillRect(area, kPaperColour);
  const ChartLayout layout = LayoutOf(area, chart, painter.font());
  const ChartRange range = RangeOf(chart);
  painter.setFont(layout.font);
  DrawGrid(painter, layout);
  if (chart.highlighted_band) {
    painter.setPen(QPen(kAxisColour, kGridWidth, Qt::DashLine));
    const auto band = static_cast<double>(*chart.highlighted_band);
    painter.drawLine(layout.At(band, 0.0), layout.At(band, kChartHeight));
  }
  DrawAxes(painter, layout);
  DrawCurves(painter, layout, chart, range);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawLabels(painter, layout, chart, range);
  DrawLegend(painter, layout);
  painter.setPen(kInkColour);
  DrawTextIn(painter, layout.plot, Qt::AlignCenter, FromWords(chart.words.note));
  painter.restore();
}

QRectF PlotArea(const QRectF& area, const CurveChart& chart, const QFont& font) {
  return LayoutOf(area, chart, font).plot;
}

std::optional<std::size_t> BandAt(const QPointF& position, const QRectF& area, const CurveChart& chart,
                                  const QFont& font) {
  const QRectF plot = PlotArea(area, chart, font);
  const double half_band = plot.width() / kChartWidth / 2.0;
  if (!plot.adjusted(-half_band, 0.0, half_band, 0.0).contains(position)) return std::nullopt;
  const double band = std::round((position.x() - plot.left()) / plot.width() * kChartWidth);
  return static_cast<std::size_t>(std::clamp(band, 0.0, kChartWidth));
}

}  // namespace velmar::presentation
