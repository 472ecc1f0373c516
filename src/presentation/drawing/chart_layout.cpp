#include "presentation/drawing/chart_layout.h"

#include <algorithm>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kLegendLine = 1.5;  ///< in heights of the text

/// Octaves are level lines over their thirds.
constexpr CurveLook kStepsLook{};

std::vector<LegendEntry> EntriesOf(const CurveChart& chart) {
  std::vector<LegendEntry> entries;
  const auto add = [&entries](bool shown, const std::string& text, const QColor& colour, CurveLook look) {
    if (shown && !text.empty()) entries.push_back({FromWords(text), colour, look, {}});
  };
  add(chart.shift.has_value(), chart.words.calculated, kCalculatedColour, kCalculatedLook);
  add(chart.shift.has_value(), chart.words.reference, kReferenceColour, kReferenceLook);
  add(chart.laboratory.has_value(), chart.words.laboratory, kLaboratoryColour,
      chart.laboratory_in_octaves ? kStepsLook : kLaboratoryLook);
  add(chart.in_situ.has_value(), chart.words.in_situ, kInSituColour,
      chart.in_situ_in_octaves ? kStepsLook : kInSituLook);
  add(chart.base.has_value(), chart.words.base, kBaseColour, kBaseLook);
  for (std::size_t i = 0; i < chart.further.size(); ++i)
    add(true, chart.further[i].name, chart.further[i].colour, LookOf(chart.further, i));
  add(chart.marks.former.has_value(), chart.words.former, kFormerColour, kFormerLook);
  return entries;
}

/// Breaks the entries into lines of at most `width` and centres each; boxes begin at y = 0.
/// @return the height that they take
double PlaceLegend(std::vector<LegendEntry>& entries, const QFont& font, double text_px, double width) {
  if (entries.empty()) return 0.0;
  const double sample = 3.0 * text_px;
  const double gap = 1.2 * text_px;
  const double line_height = kLegendLine * text_px;
  double y = 0.0;
  std::size_t begin = 0;
  while (begin < entries.size()) {
    double x = 0.0;
    std::size_t end = begin;
    while (end < entries.size()) {
      entries[end].text = Fitted(entries[end].text, font, width - sample);
      const double entry_width = sample + WidthOf(entries[end].text, font);
      if (end > begin && x + gap + entry_width > width) break;
      if (end > begin) x += gap;
      entries[end].box = QRectF(x, y, entry_width, line_height);
      x += entry_width;
      ++end;
    }
    for (std::size_t i = begin; i < end; ++i) entries[i].box.translate(std::max(0.0, (width - x) / 2.0), 0.0);
    begin = end;
    y += line_height;
  }
  return y;
}

}  // namespace

QPointF ChartLayout::At(double band, double y) const {
  return {plot.left() + plot.width() * (band - window.left) / (window.right - window.left),
          plot.bottom() - plot.height() * (y - window.bottom) / (window.top - window.bottom)};
}

ChartLayout LayoutOf(const QRectF& area, const CurveChart& chart, const QFont& font) {
  ChartLayout layout;
  layout.window = chart.marks.window;
  // A small chart takes a smaller font rather than losing its curves.
  layout.text_px = std::clamp(std::min(area.width() / 30.0, area.height() / 16.0), 5.0, PixelsOf(font));
  const double em = layout.text_px;
  layout.font = PixelFont(font, em);

  double top = area.top() + 0.6 * em;
  if (!chart.words.title.empty()) {
    layout.title = QRectF(area.left(), top, area.width(), 1.4 * em);
    top = layout.title.bottom() + 0.3 * em;
  }

  layout.legend = EntriesOf(chart);
  double legend_height = PlaceLegend(layout.legend, layout.font, em, area.width() - 1.6 * em);
  // A chart that waits for its curve keeps the room of their names.
  if (layout.legend.empty() && !chart.words.calculated.empty()) legend_height = kLegendLine * em;
  double bottom = area.bottom() - 0.4 * em - legend_height;
  for (LegendEntry& entry : layout.legend) entry.box.translate(area.left() + 0.8 * em, bottom);

  const double axis_height = chart.words.frequency_axis.empty() ? 0.0 : 1.5 * em;
  const double left = area.left() + (chart.words.level_axis.empty() ? 0.4 : 1.9) * em + 2.4 * em;
  const double right = area.right() - 1.2 * em;
  bottom -= axis_height;
  layout.frequency_axis = QRectF(left, bottom, right - left, axis_height);
  bottom -= 1.6 * em;
  layout.frequency_labels = QRectF(left, bottom, right - left, 1.6 * em);
  layout.plot = QRectF(QPointF(left, top), QPointF(right, bottom)).normalized();
  layout.level_axis = QRectF(area.left() + 0.4 * em, top, 1.5 * em, layout.plot.height());
  return layout;
}

}  // namespace velmar::presentation
