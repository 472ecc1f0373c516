#include "presentation/drawing/curve_chart.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "acoustics/bands.h"
#include "presentation/drawing/chart_axes.h"
#include "presentation/drawing/chart_layout.h"
#include "presentation/drawing/chart_marks.h"
#include "presentation/drawing/chart_scale.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/curve_look.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kCurveWidth = 2.0;
constexpr double kDotDiameter = 6.0;

void DrawReference(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                   const ChartRange& range) {
  if (!chart.shift) return;
  DrawDashed(painter, ReferenceLine(layout, chart, range, *chart.shift), kReferenceLook, kReferenceColour);
}

void DrawCurve(QPainter& painter, const ChartLayout& layout, const CurveChart& chart, const ChartRange& range,
               const acoustics::Spectrum& values, const QColor& colour, const CurveLook& look) {
  const auto at = [&](std::size_t band) {
    return layout.At(static_cast<double>(band), LogicalY(values[band], range));
  };
  const auto colour_between = [&](std::size_t from, std::size_t to) {
    const bool outside = from < acoustics::kFirstRatedBand || to > acoustics::kLastRatedBand;
    return chart.marks.pale_outside && outside ? Paler(colour) : colour;
  };
  // Stretches that follow each other are one line, so that its dashes go on.
  QPolygonF line;
  QColor line_colour;
  std::size_t line_end = 0;
  for (const ChartSegment& segment : CurveSegments(values, chart.first_band, chart.last_band)) {
    const QColor own = colour_between(segment.from, segment.to);
    if (line.isEmpty() || segment.from != line_end || own != line_colour) {
      DrawDashed(painter, std::exchange(line, {at(segment.from)}), look, line_colour);
      line_colour = own;
    }
    line << at(segment.to);
    line_end = segment.to;
  }
  DrawDashed(painter, line, look, line_colour);
  for (const std::size_t band : DottedBands(values, chart.first_band, chart.last_band))
    DrawMark(painter, at(band), look, colour_between(band, band));
}

/// Values of octaves, each over its three thirds: a level line with an edge where the octave ends, and no
/// dots.
void DrawSteps(QPainter& painter, const ChartLayout& layout, const CurveChart& chart, const ChartRange& range,
               const acoustics::Spectrum& values, const QColor& colour, Qt::PenStyle style) {
  constexpr double kHalfBand = 0.5;
  painter.setPen(QPen(colour, kCurveWidth, style, Qt::FlatCap, Qt::MiterJoin));
  QPolygonF line;
  for (std::size_t band = chart.first_band; band <= chart.last_band; ++band) {
    if (values.at(band) == 0.0) {
      painter.drawPolyline(std::exchange(line, {}));
      continue;
    }
    const double y = LogicalY(values.at(band), range);
    const auto centre = static_cast<double>(band);
    line << layout.At(std::max(centre - kHalfBand, 0.0), y)
         << layout.At(std::min(centre + kHalfBand, kChartWidth), y);
  }
  painter.drawPolyline(line);
}

/// A curve that stands beside the result.
void DrawBeside(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range, const std::optional<acoustics::Spectrum>& values,
                const QColor& colour, const CurveLook& look, bool in_octaves) {
  if (!values) return;
  if (in_octaves) {
    DrawSteps(painter, layout, chart, range, *values, colour, look.dashes);
  } else {
    DrawCurve(painter, layout, chart, range, *values, colour, look);
  }
}

void DrawLegend(QPainter& painter, const ChartLayout& layout) {
  for (const LegendEntry& entry : layout.legend) {
    const double y = entry.box.center().y();
    const QPointF begin(entry.box.left(), y);
    const QPointF end(entry.box.left() + 2.4 * layout.text_px, y);
    DrawDashed(painter, {begin, end}, entry.look, entry.colour);
    DrawMark(painter, (begin + end) / 2.0, entry.look, entry.colour);
    painter.setPen(kInkColour);
    DrawTextIn(painter, entry.box, Qt::AlignRight | Qt::AlignVCenter, entry.text);
  }
}

void DrawCurves(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range) {
  painter.save();
  // The surface's edge cuts what runs out above and below; at the sides a dot on the edge stays whole, but of
  // a part of the chart nothing stands outside.
  const double beyond = chart.marks.window.IsWhole() ? kDotDiameter : 0.0;
  painter.setClipRect(layout.plot.adjusted(-beyond, 0.0, beyond, 0.0), Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawDeviations(painter, layout, chart, range);
  DrawRequirement(painter, layout, chart, range);
  DrawReference(painter, layout, chart, range);
  DrawFormer(painter, layout, chart, range);
  if (chart.base) DrawCurve(painter, layout, chart, range, *chart.base, kBaseColour, kBaseLook);
  DrawBeside(painter, layout, chart, range, chart.octaves, kOctavesColour, {}, true);
  DrawCurve(painter, layout, chart, range, chart.values, kCalculatedColour, kCalculatedLook);
  DrawBeside(painter, layout, chart, range, chart.laboratory, kLaboratoryColour,
             chart.laboratory_in_octaves ? CurveLook{} : kLaboratoryLook, chart.laboratory_in_octaves);
  DrawBeside(painter, layout, chart, range, chart.in_situ, kInSituColour,
             chart.in_situ_in_octaves ? CurveLook{} : kInSituLook, chart.in_situ_in_octaves);
  for (std::size_t i = 0; i < chart.further.size(); ++i) {
    const FurtherCurve& curve = chart.further[i];
    DrawBeside(painter, layout, chart, range, curve.values, curve.colour, LookOf(chart.further, i),
               curve.in_octaves);
  }
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
  DrawAxes(painter, layout, chart);
  DrawCurves(painter, layout, chart, range);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawAxisLabels(painter, layout, chart, range);
  DrawDeviationSum(painter, layout, chart, range);
  DrawLegend(painter, layout);
  painter.setPen(kInkColour);
  DrawTextIn(painter, layout.plot, Qt::AlignCenter, FromWords(chart.words.note));
  painter.restore();
}

CurveLook LookOf(const std::vector<FurtherCurve>& curves, std::size_t index) {
  const FurtherCurve& curve = curves.at(index);
  if (!curve.look) return FurtherLook(index);
  return curve.in_octaves ? CurveLook{curve.look->dashes} : *curve.look;
}

acoustics::Deviations DeviationsOf(const CurveChart& chart) {
  if (!chart.shift) return {};
  return acoustics::UnfavourableDeviations(chart.values, chart.reference, *chart.shift, chart.unfavourable);
}

QRectF PlotArea(const QRectF& area, const CurveChart& chart, const QFont& font) {
  return LayoutOf(area, chart, font).plot;
}

std::optional<std::size_t> BandAt(const QPointF& position, const QRectF& area, const CurveChart& chart,
                                  const QFont& font) {
  const QRectF plot = PlotArea(area, chart, font);
  const ChartWindow& window = chart.marks.window;
  const double bands = window.right - window.left;
  const double half_band = plot.width() / bands / 2.0;
  if (!plot.adjusted(-half_band, 0.0, half_band, 0.0).contains(position)) return std::nullopt;
  const double band = std::round(window.left + (position.x() - plot.left()) / plot.width() * bands);
  return static_cast<std::size_t>(std::clamp(band, 0.0, kChartWidth));
}

}  // namespace velmar::presentation
