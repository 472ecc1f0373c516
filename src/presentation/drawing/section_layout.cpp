#include "presentation/drawing/section_layout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "presentation/drawing/label_spread.h"
#include "presentation/drawing/text.h"
#include "presentation/texts/paper_text.h"

namespace velmar::presentation {
namespace {

constexpr double kListLine = 1.45;  // in text heights
constexpr double kLargestListPart = 0.48;
/// The deepest room for bent leaders, in text heights.
constexpr double kSteepestBend = 2.9;
constexpr double kSmallestBody = 0.2;  // of the area; names give way before the strips get smaller

/// A number and its material.
struct NumberedRow {
  int number = 0;
  QString name{};
};

/// "2 x 12,5 mm"
QString ThicknessOf(const Strip& strip, std::ptrdiff_t sheets, elements::DocumentLanguage language) {
  const std::string thickness = FormatShortest(RoundToEven(strip.sheet_mm, 4)) + " mm";
  return FromWords(ForPaper(sheets > 1 ? std::to_string(sheets) + " x " + thickness : thickness, language));
}

/// One row a number.
std::vector<NumberedRow> NumberedRows(const Section& section, const SectionOptions& options) {
  std::vector<NumberedRow> rows;
  for (const Strip& strip : section.strips) {
    if (strip.number == 0 || (!rows.empty() && rows.back().number == strip.number)) continue;
    QString name = FromWords(strip.name);
    if (options.paper)
      name += ", " + ThicknessOf(strip, std::ranges::count(section.strips, strip.number, &Strip::number),
                                 options.language);
    rows.push_back({strip.number, name});
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

/// How the numbers stand beside the strips: in one lane; in two with the leaders of the far lane between the
/// near numbers; in more as flights of steps, the first number of each flight in the farthest lane, so that
/// no leader runs through a number.
struct LabelLanes {
  double text_px = 0.0;
  std::size_t count = 1;
  double size = 0.0;    ///< of a number along the strips' depth
  double leader = 0.0;  ///< what a passing leader takes
  double width = 0.0;   ///< of a lane

  bool InSteps() const { return count > 2; }

  /// The lane of label `index` of `labels`, 1 next to the strips.
  std::size_t LaneOf(std::size_t index, std::size_t labels) const {
    if (!InSteps()) return 1 + index % count;
    const std::size_t begin = index / count * count;
    return std::min(begin + count, labels) - index;
  }
  /// The room that label `index` takes among its neighbours.
  double RoomOf(std::size_t index, std::size_t labels) const {
    return LaneOf(index, labels) == 1 ? size : leader;
  }
  double LengthOf(std::size_t labels) const {
    const std::size_t near = (labels + count - 1) / count;
    if (InSteps()) return static_cast<double>(near) * size + static_cast<double>(labels - near) * leader;
    return count == 1 ? size * static_cast<double>(labels)
                      : static_cast<double>((labels + 3) / 2) * (size + leader);
  }
};

/// The room for numbers: along the strips' depth, and across, where lanes may take a part.
struct LabelRoom {
  double length = 0.0;
  double across = 0.0;
};

LabelLanes LanesOfText(double text_px, const QFont& font, bool horizontal) {
  const double width = WidthOf(QStringLiteral("00"), PixelFont(font, text_px, true));
  return {.text_px = text_px,
          .size = horizontal ? 1.25 * text_px : width + 0.45 * text_px,
          .leader = 0.4 * text_px,
          .width = horizontal ? width + 0.5 * text_px : 1.3 * text_px};
}

/// The lanes for `count` numbers: one or two as long as the text need not be smaller than `smallest_px`, then
/// as many as they need. Every number finds its place.
LabelLanes LanesFor(std::size_t count, const LabelRoom& room, double text_px, double smallest_px,
                    const QFont& font, bool horizontal) {
  constexpr double kSmallestLabel = 3.0;
  constexpr double kLargestPart = 0.5;
  LabelLanes lanes;
  for (double px = text_px; px >= std::min(smallest_px, text_px); px -= 1.0) {
    lanes = LanesOfText(px, font, horizontal);
    for (lanes.count = 1; lanes.count <= 2; ++lanes.count) {
      if (lanes.LengthOf(count) <= room.length) return lanes;
    }
  }
  for (double px = lanes.text_px; px >= kSmallestLabel; px -= 1.0) {
    lanes = LanesOfText(px, font, horizontal);
    for (lanes.count = 3; static_cast<double>(lanes.count) * lanes.width <= kLargestPart * room.across;
         ++lanes.count) {
      if (lanes.LengthOf(count) <= room.length) return lanes;
    }
  }
  lanes.count = std::max<std::size_t>(count, 3);
  lanes.leader = std::max(0.0, (room.length - lanes.size) / static_cast<double>(lanes.count));
  lanes.width = std::min(lanes.width, kLargestPart * room.across / static_cast<double>(lanes.count));
  return lanes;
}

/// The numbers of a section: where they stand along its depth and how deep their band is.
struct LabelBand {
  LabelLanes lanes{};
  double bend = 0.0;  ///< room in which the leaders bend towards their strips
  std::vector<double> targets{};
  std::vector<double> centres{};

  double Depth() const {
    return targets.empty() ? 0.0 : static_cast<double>(lanes.count) * lanes.width + bend;
  }
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

/// The band of numbers for strips that reach from `from` to `to`. @param across the room beside them
LabelBand BandOf(const std::vector<NumberedRow>& rows, const Section& section, const SectionLayout& layout,
                 double smallest_px, double from, double to, double across) {
  LabelBand band;
  if (rows.empty()) return band;
  band.lanes = LanesFor(rows.size(), {to - from, across}, layout.text_px, smallest_px, layout.font,
                        section.horizontal);
  std::vector<double> sizes;
  for (const NumberedRow& row : rows) {
    band.targets.push_back(from + (to - from) * TargetOf(section, row.number) / section.thickness_mm);
    sizes.push_back(band.lanes.RoomOf(sizes.size(), rows.size()));
  }
  // A number of the far one of two lanes is wider than its leader, also at the ends.
  const double spare = band.lanes.count == 2 ? (band.lanes.size - band.lanes.leader) / 2.0 : 0.0;
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
  const LabelLanes& lanes = band.lanes;
  const double edge = horizontal ? body.left() : body.top();
  const double foot = edge - band.bend;
  const double inside =
      edge + std::min(0.7 * layout.text_px, 0.2 * (horizontal ? body.width() : body.height()));
  const auto point = [horizontal](double along, double across) {
    return horizontal ? QPointF(across, along) : QPointF(along, across);
  };
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto lane = static_cast<double>(lanes.LaneOf(i, rows.size()));
    const double centre = band.centres[i];
    // A number on a step begins at its leader: those of the steps before it pass at the other side.
    const double begin =
        lanes.InSteps() && lane > 1.0 ? centre - lanes.leader / 2.0 : centre - lanes.size / 2.0;
    SectionLabel label{.number = rows[i].number};
    const QPointF corner = point(begin, foot - lane * lanes.width);
    label.box =
        QRectF(corner, horizontal ? QSizeF(lanes.width, lanes.size) : QSizeF(lanes.size, lanes.width));
    label.leader << point(centre, foot - (lane - 1.0) * lanes.width) << point(centre, foot)
                 << point(band.targets[i], edge) << point(band.targets[i], inside);
    layout.labels.push_back(label);
  }
}

/// What stands beside the strips: thickness after thickness of what is alike, air too.
std::vector<SectionDimension> DimensionsOf(const SectionLayout& layout, const Section& section) {
  std::vector<SectionDimension> dimensions;
  for (std::size_t i = 0; i < section.strips.size(); ++i) {
    const Strip& strip = section.strips[i];
    const bool same = i > 0 && strip.number != 0 && strip.number == section.strips[i - 1].number;
    const QRectF& box = layout.strips[i];
    const double to = section.horizontal ? box.bottom() : box.right();
    if (same) {
      dimensions.back().to = to;
      dimensions.back().thickness_mm += strip.thickness_mm;
    } else {
      dimensions.push_back({section.horizontal ? box.top() : box.left(), to, strip.thickness_mm});
    }
  }
  return dimensions;
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

QString DimensionText(double thickness_mm, elements::DocumentLanguage language) {
  return FromWords(ForPaper(FormatShortest(RoundToEven(thickness_mm, 4)) + " (mm)", language));
}

SectionLayout LayoutOf(const QRectF& area, const Section& section, const QFont& font,
                       const SectionOptions& options) {
  SectionLayout layout;
  layout.text_px = std::clamp(std::min(area.width(), area.height()) / 10.0, 5.0, PixelsOf(font));
  layout.font = PixelFont(font, layout.text_px);
  if (section.strips.empty() || area.isEmpty()) return layout;
  if (options.strips_alone) {
    layout.body = area.adjusted(0.5, 0.5, -0.5, -0.5);
    PlaceStrips(layout, section);
    return layout;
  }
  const double em = layout.text_px;
  QRectF room = area.adjusted(0.6 * em, 0.6 * em, -0.6 * em, -0.6 * em);

  const std::vector<NumberedRow> rows = NumberedRows(section, options);
  if (options.list_names) PlaceList(layout, room, rows);
  if (section.horizontal) room.adjust(0.0, 0.3 * em, 0.0, -0.3 * em);
  if (!options.near_side.isEmpty() || !options.far_side.isEmpty()) {
    const double side = 1.5 * em;
    room.adjust(section.horizontal ? 0.0 : side, section.horizontal ? side : 0.0,
                section.horizontal ? 0.0 : -side, section.horizontal ? -side : 0.0);
  }
  const double chain = !options.paper       ? 0.0
                       : section.horizontal ? WidthOf(QStringLiteral("0000,0"), layout.font) + 0.6 * em
                                            : 1.5 * em;

  const double arrow =
      section.horizontal
          ? chain + 1.8 * em + WidthOf(DimensionText(section.thickness_mm, options.language), layout.font)
          : chain + 2.6 * em;
  const double across = (section.horizontal ? room.width() : room.height()) - arrow - kSteepestBend * em;
  const LabelBand band =
      BandOf(rows, section, layout, options.smallest_number_px, section.horizontal ? room.top() : room.left(),
             section.horizontal ? room.bottom() : room.right(), std::max(across, em));
  layout.label_px = band.lanes.text_px;
  if (section.horizontal) {
    layout.body = room.adjusted(band.Depth(), 0.0, -arrow, 0.0);
    layout.arrow = QRectF(layout.body.right(), layout.body.top(), arrow, layout.body.height());
  } else {
    layout.body = room.adjusted(0.0, band.Depth(), 0.0, -arrow);
    layout.arrow = QRectF(layout.body.left(), layout.body.bottom(), layout.body.width(), arrow);
  }
  const bool cramped = layout.body.width() < kSmallestBody * area.width() ||
                       layout.body.height() < kSmallestBody * area.height();
  if (cramped && options.list_names) {
    SectionOptions without_names = options;
    without_names.list_names = false;
    return LayoutOf(area, section, font, without_names);
  }
  layout.chain = chain;
  PlaceStrips(layout, section);
  PlaceLabels(layout, rows, band, section.horizontal);
  if (options.paper) layout.dimensions = DimensionsOf(layout, section);
  return layout;
}

}  // namespace velmar::presentation
