#include "presentation/drawing/section_layout.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "presentation/drawing/label_spread.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kListLine = 1.45;  // in text heights
constexpr double kLargestListPart = 0.48;
constexpr double kSmallestBody = 0.2;  // of the area; names give way before the strips get smaller

/// A number and its material.
struct NumberedRow {
  int number = 0;
  QString name{};
};

/// One row a number.
std::vector<NumberedRow> NumberedRows(const Section& section) {
  std::vector<NumberedRow> rows;
  for (const Strip& strip : section.strips) {
    if (strip.number == 0 || (!rows.empty() && rows.back().number == strip.number)) continue;
    rows.push_back({strip.number, FromWords(strip.name)});
  }
  return rows;
}

/// Columns for the names of `rows` lines that take `height` in one: one, or two where one is too tall; none
/// where two are too.
int ColumnsFor(std::size_t rows, double line, double largest_height) {
  const double height = line * static_cast<double>(rows);
  if (height <= largest_height) return 1;
  return line * static_cast<double>((rows + 1) / 2) <= largest_height ? 2 : 0;
}

/// Takes the room of the names off `area`: at the right of a wide area, below a tall one.
void PlaceList(SectionLayout& layout, QRectF& area, const std::vector<NumberedRow>& rows) {
  const double em = layout.text_px;
  const double line = kListLine * em;
  const bool beside = area.width() > 1.15 * area.height();
  const int columns = ColumnsFor(rows.size(), line, area.height() * (beside ? 1.0 : kLargestListPart));
  if (rows.empty() || columns == 0) return;

  const QFont bold = PixelFont(layout.font, em, true);  // a highlighted name is bold
  const double number_width = WidthOf(QStringLiteral("00"), layout.font) + 1.0 * em;
  double name_width = 0.0;
  for (const NumberedRow& row : rows) name_width = std::max(name_width, WidthOf(row.name, bold));
  const auto column_rows =
      (rows.size() + static_cast<std::size_t>(columns) - 1) / static_cast<std::size_t>(columns);
  const double height = line * static_cast<double>(column_rows);
  QRectF list(area.left(), area.bottom() - height, area.width(), height);
  if (beside) {
    const double width =
        std::min(columns * (number_width + name_width + 0.3 * em), kLargestListPart * area.width());
    list = QRectF(area.right() - width, area.center().y() - height / 2.0, width, height);
    area.setRight(list.left() - 1.2 * em);
  } else {
    area.setBottom(list.top() - 0.6 * em);
  }
  const QSizeF cell(list.width() / columns, line);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const QPointF corner = list.topLeft() + QPointF(cell.width() * static_cast<double>(i / column_rows),
                                                    line * static_cast<double>(i % column_rows));
    layout.list.push_back({rows[i].number, rows[i].name, QRectF(corner, cell)});
  }
}

/// How the numbers stand: in one lane, or in two with the leaders of the far lane between the near numbers.
struct LabelLanes {
  double text_px = 0.0;
  bool two = false;
  double size = 0.0;    ///< of a number along the strips' depth
  double leader = 0.0;  ///< what a passing leader takes

  double SizeOf(std::size_t index) const { return two && index % 2 == 1 ? leader : size; }
};

/// The lanes for `count` numbers along `length`, none smaller than `smallest_px`; nothing when they do not
/// fit.
std::optional<LabelLanes> LanesFor(std::size_t count, double length, double text_px, double smallest_px,
                                   const QFont& font, bool horizontal) {
  LabelLanes lanes;
  for (lanes.text_px = text_px;; lanes.text_px -= 1.0) {
    const QFont label_font = PixelFont(font, lanes.text_px, true);
    lanes.size =
        horizontal ? 1.25 * lanes.text_px : WidthOf(QStringLiteral("00"), label_font) + 0.45 * lanes.text_px;
    lanes.leader = 0.4 * lanes.text_px;
    lanes.two = lanes.size * static_cast<double>(count) > length;
    const double taken =
        lanes.two ? (static_cast<double>((count + 3) / 2)) * (lanes.size + lanes.leader) : 0.0;
    if (taken <= length) return lanes;
    if (lanes.text_px - 1.0 < smallest_px) return std::nullopt;
  }
}

/// The numbers of a section: where they stand along its depth and how deep their band is.
struct LabelBand {
  LabelLanes lanes{};
  double lane_width = 0.0;
  double bend = 0.0;  ///< room in which the leaders bend towards their strips
  std::vector<double> targets{};
  std::vector<double> centres{};

  double Depth() const { return targets.empty() ? 0.0 : (lanes.two ? 2.0 : 1.0) * lane_width + bend; }
};

/// The middle of the middle one of the strips of `number`, in mm.
double TargetOf(const Section& section, int number) {
  std::vector<const Strip*> strips;
  for (const Strip& strip : section.strips) {
    if (strip.number == number) strips.push_back(&strip);
  }
  const Strip& middle = *strips[(strips.size() - 1) / 2];
  return middle.position_mm + middle.thickness_mm / 2.0;
}

/// Every `step`th of `rows`.
std::vector<NumberedRow> Thinned(const std::vector<NumberedRow>& rows, std::size_t step) {
  std::vector<NumberedRow> kept;
  for (std::size_t i = 0; i < rows.size(); i += step) kept.push_back(rows[i]);
  return kept;
}

/// The band of numbers for strips that reach from `from` to `to`. Where not all are legible, `rows` keeps
/// every second or third, as on a rule.
LabelBand BandOf(std::vector<NumberedRow>& rows, const Section& section, const SectionLayout& layout,
                 double smallest_px, double from, double to) {
  LabelBand band;
  const std::vector<NumberedRow> all = rows;
  for (std::size_t step = 1; step <= all.size(); ++step) {
    rows = Thinned(all, step);
    const auto lanes =
        LanesFor(rows.size(), to - from, layout.text_px, smallest_px, layout.font, section.horizontal);
    if (!lanes) continue;
    band.lanes = *lanes;
    break;
  }
  if (band.lanes.text_px == 0.0) {
    rows.clear();
    return band;
  }
  const QFont label_font = PixelFont(layout.font, band.lanes.text_px, true);
  band.lane_width = section.horizontal ? WidthOf(QStringLiteral("00"), label_font) + 0.5 * band.lanes.text_px
                                       : 1.3 * band.lanes.text_px;
  std::vector<double> sizes;
  for (const NumberedRow& row : rows) {
    band.targets.push_back(from + (to - from) * TargetOf(section, row.number) / section.thickness_mm);
    sizes.push_back(band.lanes.SizeOf(sizes.size()));
  }
  // A number of the far lane is wider than its leader, also at the ends.
  const double spare = band.lanes.two ? (band.lanes.size - band.lanes.leader) / 2.0 : 0.0;
  band.centres = SpreadLabels(band.targets, sizes, from + spare, to - spare);
  double farthest = 0.0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    farthest = std::max(farthest, std::abs(band.centres[i] - band.targets[i]));
  }
  // Far numbers get steeper leaders, or many would run into one line.
  band.bend = layout.text_px * 0.9 + std::min(0.15 * farthest, 2.0 * layout.text_px);
  return band;
}

void PlaceLabels(SectionLayout& layout, const std::vector<NumberedRow>& rows, const LabelBand& band,
                 bool horizontal) {
  const QRectF& body = layout.body;
  const double edge = horizontal ? body.left() : body.top();
  const double foot = edge - band.bend;
  const double inside =
      edge + std::min(0.7 * layout.text_px, 0.2 * (horizontal ? body.width() : body.height()));
  const auto point = [horizontal](double along, double across) {
    return horizontal ? QPointF(across, along) : QPointF(along, across);
  };
  const double size = band.lanes.size;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double lane = band.lanes.two && i % 2 == 1 ? 2.0 : 1.0;
    const double centre = band.centres[i];
    SectionLabel label{.number = rows[i].number};
    const QPointF corner = point(centre - size / 2.0, foot - lane * band.lane_width);
    label.box = QRectF(corner, horizontal ? QSizeF(band.lane_width, size) : QSizeF(size, band.lane_width));
    label.leader << point(centre, foot - (lane - 1.0) * band.lane_width) << point(centre, foot)
                 << point(band.targets[i], edge) << point(band.targets[i], inside);
    layout.labels.push_back(label);
  }
}

void PlaceStrips(SectionLayout& layout, const Section& section) {
  const QRectF& body = layout.body;
  for (const Strip& strip : section.strips) {
    const StripSpan span = SpanOf(strip, section.thickness_mm);
    const double from = (span.from - kSectionMargin) / (kSectionUnits - kSectionMargin);
    const double to = (span.to - kSectionMargin) / (kSectionUnits - kSectionMargin);
    layout.strips.push_back(section.horizontal ? QRectF(body.left(), body.top() + from * body.height(),
                                                        body.width(), (to - from) * body.height())
                                               : QRectF(body.left() + from * body.width(), body.top(),
                                                        (to - from) * body.width(), body.height()));
  }
}

}  // namespace

QString DimensionText(double thickness_mm) {
  return FromWords(FormatShortest(RoundToEven(thickness_mm, 4)) + " (mm)");
}

SectionLayout LayoutOf(const QRectF& area, const Section& section, const QFont& font,
                       const SectionOptions& options) {
  SectionLayout layout;
  layout.text_px = std::clamp(std::min(area.width(), area.height()) / 10.0, 5.0, PixelsOf(font));
  layout.font = PixelFont(font, layout.text_px);
  if (section.strips.empty() || area.isEmpty()) return layout;
  const double em = layout.text_px;
  QRectF room = area.adjusted(0.6 * em, 0.6 * em, -0.6 * em, -0.6 * em);

  std::vector<NumberedRow> rows = NumberedRows(section);
  if (options.list_names) PlaceList(layout, room, rows);
  if (section.horizontal) room.adjust(0.0, 0.3 * em, 0.0, -0.3 * em);

  const LabelBand band =
      section.horizontal
          ? BandOf(rows, section, layout, options.smallest_number_px, room.top(), room.bottom())
          : BandOf(rows, section, layout, options.smallest_number_px, room.left(), room.right());
  layout.label_px = band.lanes.text_px;
  if (section.horizontal) {
    const double arrow_width = 1.8 * em + WidthOf(DimensionText(section.thickness_mm), layout.font);
    layout.body = room.adjusted(band.Depth(), 0.0, -arrow_width, 0.0);
    layout.arrow = QRectF(layout.body.right(), layout.body.top(), arrow_width, layout.body.height());
  } else {
    layout.body = room.adjusted(0.0, band.Depth(), 0.0, -2.6 * em);
    layout.arrow = QRectF(layout.body.left(), layout.body.bottom(), layout.body.width(), 2.6 * em);
  }
  const bool cramped = layout.body.width() < kSmallestBody * area.width() ||
                       layout.body.height() < kSmallestBody * area.height();
  if (cramped && options.list_names) {
    return LayoutOf(area, section, font,
                    {.highlighted_number = options.highlighted_number,
                     .list_names = false,
                     .smallest_number_px = options.smallest_number_px});
  }
  PlaceStrips(layout, section);
  PlaceLabels(layout, rows, band, section.horizontal);
  return layout;
}

}  // namespace velmar::presentation
