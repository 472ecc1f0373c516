#include <QPainter>
#include <algorithm>
#include <array>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/page_blocks.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kNarrowestColumn = 1.9 * kPageInch;
constexpr int kMostColumns = 3;

/// A size of text and its line spacing in line heights.
struct Setting {
  double points = 0.0;
  double spacing = 0.0;
};
constexpr std::array kSettings = {Setting{10.0, 1.3}, Setting{10.0, 1.1}, Setting{9.0, 1.1},
                                  Setting{8.0, 1.1},  Setting{7.5, 1.0},  Setting{7.0, 1.0}};

struct Entry {
  QString number{};
  QString name{};
  QString amount{};
  bool bold = false;
  bool begins_block = false;
};

std::vector<Entry> EntriesOf(const PaginaDiStampa& page) {
  std::vector<Entry> entries;
  for (const StructureBlock& block : page.structure) {
    bool begins = true;
    if (!block.heading.empty() || !block.mass.empty()) {
      entries.push_back({{}, FromWords(block.heading), FromWords(block.mass), true, true});
      begins = false;
    }
    for (const StructureLine& line : block.lines) {
      const QString number = line.number > 0 ? QString::number(line.number) : QString();
      entries.push_back({number, FromWords(line.name), FromWords(line.amount), false, begins});
      begins = false;
    }
  }
  for (const std::string& note : page.structure_notes) {
    entries.push_back({{}, FromWords(note), {}, false, &note == &page.structure_notes.front()});
  }
  return entries;
}

/// An entry's place; the column is counted from the left.
struct PlacedEntry {
  int column = 0;
  double top = 0.0;
  double height = 0.0;
};

struct StructureFit {
  double points = 0.0;
  int columns = 1;
  double column_width = 0.0;
  double number_width = 0.0;
  std::vector<PlacedEntry> places{};  ///< fewer than the entries when they do not all fit
};

double AmountWidth(const Entry& entry, const QFont& font) {
  return entry.amount.isEmpty() ? 0.0 : WidthOf(entry.amount, font) + 0.8 * LineHeight(font);
}

double NameWidth(const Entry& entry, const QFont& font, const StructureFit& fit) {
  const double indent = entry.bold ? 0.0 : fit.number_width;
  return std::max(fit.column_width - indent - AmountWidth(entry, font), 0.25 * fit.column_width);
}

StructureFit Place(const std::vector<Entry>& entries, const QSizeF& room, const Setting& setting,
                   int columns) {
  const double points = setting.points;
  const double gap = 1.6 * points * kPagePoint;
  StructureFit fit{.points = points, .columns = columns};
  fit.column_width = (room.width() - gap * (columns - 1)) / columns;
  fit.number_width = WidthOf(QStringLiteral("00  "), PageFont(points, true));
  int column = 0;
  double y = 0.0;
  for (const Entry& entry : entries) {
    const QFont font = PageFont(points, entry.bold);
    const double line = LineHeight(font);
    const double height = std::max(WrappedHeight(entry.name, font, NameWidth(entry, font, fit)), line);
    if (entry.begins_block && y > 0.0) y += 0.5 * line;
    // A heading never stands alone at the foot of a column.
    const double wanted = entry.bold ? height + line : height;
    if (y + wanted > room.height() + 1.0) {
      if (++column == columns) return fit;
      y = 0.0;
    }
    fit.places.push_back({column, y, height});
    y += height + (setting.spacing - 1.0) * line;
  }
  return fit;
}

StructureFit BestFit(const std::vector<Entry>& entries, const QSizeF& room) {
  StructureFit fit;
  for (const Setting& setting : kSettings) {
    for (int columns = 1; columns <= kMostColumns; ++columns) {
      if (columns > 1 && room.width() / columns < kNarrowestColumn) break;
      fit = Place(entries, room, setting, columns);
      if (fit.places.size() == entries.size()) return fit;
    }
  }
  return fit;
}

void DrawEntry(QPainter& painter, const QRectF& box, const Entry& entry, const StructureFit& fit) {
  const QFont font = PageFont(fit.points, entry.bold);
  const double indent = entry.bold ? 0.0 : fit.number_width;
  const QRectF name(box.left() + indent, box.top(), NameWidth(entry, font, fit), box.height());
  DrawWrapped(painter, name, font, entry.name);
  DrawWrapped(painter, box, font, entry.amount, Qt::AlignRight | Qt::AlignTop);
  DrawWrapped(painter, box, PageFont(fit.points, true), entry.number);
}

}  // namespace

bool StructureFits(const QSizeF& size, const PaginaDiStampa& page) {
  const std::vector<Entry> entries = EntriesOf(page);
  return BestFit(entries, size).places.size() == entries.size();
}

double DrawStructure(QPainter& painter, const QRectF& area, const PaginaDiStampa& page) {
  const std::vector<Entry> entries = EntriesOf(page);
  const StructureFit fit = BestFit(entries, area.size());
  painter.setPen(kInkColour);
  const double gap = 1.6 * fit.points * kPagePoint;
  double bottom = 0.0;
  for (std::size_t i = 0; i < fit.places.size(); ++i) {
    const PlacedEntry& place = fit.places[i];
    const QPointF corner(area.left() + place.column * (fit.column_width + gap), area.top() + place.top);
    DrawEntry(painter, QRectF(corner, QSizeF(fit.column_width, place.height)), entries[i], fit);
    bottom = std::max(bottom, place.top + place.height);
  }
  return bottom;
}

}  // namespace velmar::presentation
