#include "presentation/drawing/chart_marks.h"

#include <QLineF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <array>
#include <vector>

#include "acoustics/bands.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kMarkWidth = 1.5;
constexpr std::size_t k500Hz = 7;  ///< among the rated bands: where a reference curve has its rating
constexpr int kPaleAlpha = 96;

/// `colour` over the paper, opaque: overlapping ends of lines do not darken.
QColor OverPaper(const QColor& colour, int alpha) {
  const auto mixed = [alpha](int ink, int paper) { return (ink * alpha + paper * (255 - alpha)) / 255; };
  return {mixed(colour.red(), kPaperColour.red()), mixed(colour.green(), kPaperColour.green()),
          mixed(colour.blue(), kPaperColour.blue())};
}

/// The lines that `chart` is made of; of octaves the slopes between them.
std::vector<QLineF> LinesOf(const ChartLayout& layout, const CurveChart& chart, const ChartRange& range) {
  std::vector<QLineF> lines;
  const auto add = [&](const acoustics::Spectrum& values) {
    for (const ChartSegment& segment : CurveSegments(values, chart.first_band, chart.last_band)) {
      lines.emplace_back(layout.At(static_cast<double>(segment.from), LogicalY(values[segment.from], range)),
                         layout.At(static_cast<double>(segment.to), LogicalY(values[segment.to], range)));
    }
  };
  add(chart.values);
  for (const auto* values :
       {&chart.base, &chart.laboratory, &chart.in_situ, &chart.octaves, &chart.marks.former}) {
    if (*values) add(**values);
  }
  for (const FurtherCurve& curve : chart.further) add(curve.values);
  if (chart.shift) {
    const QPolygonF reference = ReferenceLine(layout, chart, range, *chart.shift);
    for (qsizetype i = 1; i < reference.size(); ++i) lines.emplace_back(reference[i - 1], reference[i]);
  }
  return lines;
}

bool Meets(const QRectF& box, const QLineF& line) {
  if (box.contains(line.p1()) || box.contains(line.p2())) return true;
  const std::array edges = {QLineF(box.topLeft(), box.topRight()), QLineF(box.topRight(), box.bottomRight()),
                            QLineF(box.bottomRight(), box.bottomLeft()),
                            QLineF(box.bottomLeft(), box.topLeft())};
  return std::ranges::any_of(
      edges, [&line](const QLineF& edge) { return line.intersects(edge) == QLineF::BoundedIntersection; });
}

/// The corner of the plot in which words of `size` hide no curve; where each has one, that which the curves
/// usually leave free.
QRectF FreeCorner(const QSizeF& size, const ChartLayout& layout, const CurveChart& chart,
                  const ChartRange& range) {
  const double em = layout.text_px;
  const QRectF plot = layout.plot.adjusted(0.5 * em, 0.4 * em, -0.5 * em, -0.4 * em);
  const double top = plot.top();
  const double bottom = plot.bottom() - size.height();
  const bool above = chart.unfavourable == acoustics::Unfavourable::kAbove;
  const double usual = above ? top : bottom;
  const double opposite = above ? bottom : top;
  const double right = plot.right() - size.width();
  const std::vector<QLineF> lines = LinesOf(layout, chart, range);
  for (const QPointF& corner : {QPointF(right, usual), QPointF(right, opposite), QPointF(plot.left(), usual),
                                QPointF(plot.left(), opposite)}) {
    const QRectF box(corner, size);
    if (std::ranges::none_of(lines, [&box](const QLineF& line) { return Meets(box, line); })) return box;
  }
  return {QPointF(right, usual), size};
}

}  // namespace

QPolygonF ReferenceLine(const ChartLayout& layout, const CurveChart& chart, const ChartRange& range,
                        double shift) {
  QPolygonF line;
  for (std::size_t i = 0; i < chart.reference.size(); ++i) {
    line << layout.At(static_cast<double>(i + acoustics::kFirstRatedBand),
                      LogicalY(chart.reference[i] + shift, range));
  }
  return line;
}

QColor Paler(const QColor& colour) { return OverPaper(colour, kPaleAlpha); }

void DrawDeviations(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                    const ChartRange& range) {
  if (!chart.marks.deviations || !chart.shift) return;
  const acoustics::Deviations deviations = DeviationsOf(chart);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kDeviationColour);
  for (std::size_t i = 0; i < deviations.size(); ++i) {
    const std::size_t band = i + acoustics::kFirstRatedBand;
    if (deviations[i] <= 0.0 || chart.values[band] == 0.0) continue;
    const auto place = static_cast<double>(band);
    const QPointF curve = layout.At(place - 0.5, LogicalY(chart.values[band], range));
    const QPointF reference = layout.At(place + 0.5, LogicalY(chart.reference[i] + *chart.shift, range));
    painter.drawRect(QRectF(curve, reference).normalized());
  }
  painter.setBrush(Qt::NoBrush);
}

void DrawDeviationSum(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                      const ChartRange& range) {
  if (!chart.marks.deviations || !chart.shift || chart.words.deviations.empty()) return;
  const double em = layout.text_px;
  QStringList lines = {FromWords(chart.words.deviations)};
  if (!chart.words.deviations_note.empty()) lines += FromWords(chart.words.deviations_note);
  double width = 0.0;
  for (const QString& line : lines) width = std::max(width, WidthOf(line, layout.font));
  const double line_height = 1.5 * em;
  const QSizeF size(std::min(width + em, layout.plot.width() - em),
                    line_height * static_cast<double>(lines.size()));
  const QRectF box = FreeCorner(size, layout, chart, range);
  QColor ground = kPaperColour;
  ground.setAlphaF(0.85F);
  painter.fillRect(box, ground);
  painter.setPen(kQuietInkColour);
  QRectF line(box.left(), box.top(), box.width(), line_height);
  for (const QString& text : lines) {
    DrawTextIn(painter, line, Qt::AlignCenter, Fitted(text, layout.font, line.width()));
    line.translate(0.0, line_height);
  }
}

void DrawRequirement(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                     const ChartRange& range) {
  if (!chart.marks.required || !chart.shift) return;
  const double shift = *chart.marks.required - chart.reference[k500Hz];
  const QPolygonF line = ReferenceLine(layout, chart, range, shift);
  painter.setPen(QPen(kRequirementColour, kMarkWidth, Qt::DashLine));
  painter.drawPolyline(line);
  const QString text = FromWords(chart.words.required);
  const double em = layout.text_px;
  // At the flat end of the curve, on the side away from the reference curve.
  const bool at_right = chart.unfavourable == acoustics::Unfavourable::kBelow;
  const QPointF end = at_right ? line.back() : line.front();
  const double width = WidthOf(text, layout.font) + em;
  const bool above = shift >= *chart.shift;
  const QRectF box(at_right ? end.x() - width : end.x(), end.y() + (above ? -1.6 : 0.2) * em, width,
                   1.4 * em);
  QColor ground = kPaperColour;
  ground.setAlphaF(0.85F);
  painter.fillRect(box, ground);
  painter.setPen(kRequirementColour);
  DrawTextIn(painter, box, Qt::AlignCenter, text);
}

void DrawFormer(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range) {
  if (!chart.marks.former) return;
  const acoustics::Spectrum& values = *chart.marks.former;
  const auto at = [&](std::size_t band) {
    return layout.At(static_cast<double>(band), LogicalY(values[band], range));
  };
  painter.setPen(QPen(kFormerColour, kMarkWidth));
  for (const ChartSegment& segment : CurveSegments(values, chart.first_band, chart.last_band))
    painter.drawLine(at(segment.from), at(segment.to));
}

}  // namespace velmar::presentation
