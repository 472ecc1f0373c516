#include <QPainter>
#include <algorithm>
#include <numeric>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/page_blocks.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kRuleWidth = 0.5 * kPagePoint;
const QColor kHeadTint(0xEE, 0xF0, 0xF4);

/// A table measured for one text size.
struct MeasuredTable {
  QFont font{};
  QFont head_font{};
  double padding = 0.0;
  std::vector<double> widths{};
  std::vector<bool> left{};  ///< columns that stand left
  bool at_top = false;
  double head_height = 0.0;
  std::vector<double> row_heights{};

  double Height() const { return head_height + std::accumulate(row_heights.begin(), row_heights.end(), 0.0); }
};

double RowHeight(const std::vector<std::string>& cells, const QFont& font, const MeasuredTable& table) {
  double height = LineHeight(font);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    height =
        std::max(height, WrappedHeight(FromWords(cells[i]), font, table.widths[i] - 2.0 * table.padding));
  }
  return height + 0.6 * table.padding;
}

/// Whether a cell of `column` is neither a number nor a mark.
bool HoldsWords(const PageTable& table, std::size_t column) {
  return std::ranges::any_of(table.rows, [&](const auto& row) {
    const QString cell = FromWords(row[column]);
    return std::ranges::count_if(cell, [](QChar c) { return c.isLetter(); }) > 1;
  });
}

MeasuredTable Measure(const PageTable& table, const TableStyle& style, double points, double width) {
  MeasuredTable measured;
  measured.font = PageFont(points);
  measured.head_font = PageFont(points, true);
  measured.padding = 0.35 * points * kPagePoint;
  std::vector<double> weights = style.weights;
  weights.resize(table.heads.size(), 1.0);
  const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
  for (const double weight : weights) measured.widths.push_back(width * weight / sum);
  measured.at_top = style.words_left;
  for (std::size_t i = 0; i < table.heads.size(); ++i)
    measured.left.push_back((i == 0 && style.first_left) || (style.words_left && HoldsWords(table, i)));
  measured.head_height = RowHeight(table.heads, measured.head_font, measured);
  for (const auto& row : table.rows) measured.row_heights.push_back(RowHeight(row, measured.font, measured));
  return measured;
}

void DrawRow(QPainter& painter, const QPointF& corner, double height, const std::vector<std::string>& cells,
             const QFont& font, const MeasuredTable& table) {
  double x = corner.x();
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const double above = table.at_top ? 0.3 * table.padding : 0.0;
    const QRectF cell(x + table.padding, corner.y() + above, table.widths[i] - 2.0 * table.padding,
                      height - above);
    const int align = table.left[i] ? Qt::AlignLeft : Qt::AlignHCenter;
    DrawWrapped(painter, cell, font, FromWords(cells[i]),
                align | (table.at_top ? Qt::AlignTop : Qt::AlignVCenter));
    x += table.widths[i];
  }
}

}  // namespace

DrawnTable DrawTable(QPainter& painter, const QRectF& area, const PageTable& table, const TableStyle& style) {
  if (table.heads.empty()) return {};
  double points = style.points;
  MeasuredTable measured = Measure(table, style, points, area.width());
  while (style.shrinks && measured.Height() > style.largest_height && points > kSmallestPoints) {
    points = std::max(kSmallestPoints, points - 0.5);
    measured = Measure(table, style, points, area.width());
  }
  // Heads without a row below them tell nothing.
  const double first = table.rows.empty() ? 0.0 : measured.row_heights.front();
  if (measured.head_height + first > style.largest_height + 1.0) return {};
  painter.fillRect(QRectF(area.topLeft(), QSizeF(area.width(), measured.head_height)), kHeadTint);
  painter.setPen(kInkColour);
  DrawRow(painter, area.topLeft(), measured.head_height, table.heads, measured.head_font, measured);
  double y = area.top() + measured.head_height;
  const double bottom = area.top() + style.largest_height;
  std::size_t row = 0;
  for (; row < table.rows.size() && y + measured.row_heights[row] <= bottom + 1.0; ++row) {
    const double height = measured.row_heights[row];
    painter.setPen(QPen(kVerticalGridColour, kRuleWidth));
    painter.drawLine(QPointF(area.left(), y + height), QPointF(area.right(), y + height));
    painter.setPen(kInkColour);
    DrawRow(painter, {area.left(), y}, height, table.rows[row], measured.font, measured);
    y += height;
  }
  return {.height = y - area.top(), .next_row = row};
}

namespace {

struct FieldPlace {
  QString caption{};
  double indent = 0.0;
  double height = 0.0;
};

double ColumnGap(double points) { return 2.0 * points * kPagePoint; }

FieldPlace PlaceOf(const PageField& field, double width, const QFont& font) {
  FieldPlace place{.caption = field.caption.empty() ? QString() : FromWords(field.caption + ": ")};
  place.indent = std::min(WidthOf(place.caption, font), 0.6 * width);
  place.height = WrappedHeight(FromWords(field.value), font, width - place.indent);
  return place;
}

}  // namespace

bool IsLongField(const PageField& field, double width, double points, int columns) {
  const QFont font = PageFont(points);
  const double column = (width - ColumnGap(points) * (columns - 1)) / columns;
  return PlaceOf(field, column, font).height > kMostFieldLines * LineHeight(font) + 1.0;
}

double DrawFields(QPainter& painter, const QRectF& area, const std::vector<PageField>& fields, double points,
                  int columns) {
  const QFont font = PageFont(points);
  const double gap = ColumnGap(points);
  const double width = (area.width() - gap * (columns - 1)) / columns;
  double y = area.top();
  for (std::size_t begin = 0; begin < fields.size(); begin += static_cast<std::size_t>(columns)) {
    double row_height = LineHeight(font);
    for (int column = 0; column < columns; ++column) {
      const std::size_t index = begin + static_cast<std::size_t>(column);
      if (index >= fields.size()) break;
      const PageField& field = fields[index];
      const auto& [caption, indent, height] = PlaceOf(field, width, font);
      const double x = area.left() + column * (width + gap);
      const QString value = FromWords(field.value);
      painter.setPen(kQuietInkColour);
      DrawWrapped(painter, QRectF(x, y, indent + 1.0, LineHeight(font)), font, caption);
      painter.setPen(kInkColour);
      DrawWrapped(painter, QRectF(x + indent, y, width - indent, height), font, value);
      row_height = std::max(row_height, height);
    }
    y += row_height + 0.25 * points * kPagePoint;
  }
  return y - area.top();
}

}  // namespace velmar::presentation
