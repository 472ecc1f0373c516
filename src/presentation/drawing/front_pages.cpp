#include "presentation/drawing/front_pages.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/section_drawing.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kInset = 0.7 * kPageInch;
constexpr double kCoverPoints = 24.0;
constexpr double kCoverTextPoints = 12.0;
constexpr double kContentsPoints = 10.0;
constexpr double kHeadTitlePoints = 16.0;
constexpr double kCellPadding = 3.0 * kPagePoint;
constexpr double kDrawingHeight = 30.0 * kPagePoint;
constexpr double kRule = 0.5 * kPagePoint;
const QColor kHeadTint(0xEE, 0xF0, 0xF4);

QRectF TextArea(const QSizeF& paper) {
  return QRectF(QPointF(), paper).adjusted(kInset, kInset, -kInset, -kInset);
}

double TitleHeight() { return 1.8 * LineHeight(PageFont(kHeadTitlePoints, true)); }

void DrawTitle(QPainter& painter, const QSizeF& paper, const std::string& title) {
  painter.setPen(kInkColour);
  DrawWrapped(painter, TextArea(paper), PageFont(kHeadTitlePoints, true), FromWords(title));
}

/// The columns of a table on one page.
struct Columns {
  std::vector<double> lefts{};
  std::vector<double> widths{};
};

Columns ColumnsOf(const QSizeF& paper, const DrawnRows& table) {
  const QRectF area = TextArea(paper);
  const double sum = std::accumulate(table.weights.begin(), table.weights.end(), 0.0);
  Columns columns;
  double left = area.left();
  for (const double weight : table.weights) {
    columns.lefts.push_back(left);
    columns.widths.push_back(area.width() * weight / sum);
    left += columns.widths.back();
  }
  return columns;
}

double RowHeight(const std::vector<std::string>& cells, const QFont& font, const Columns& columns,
                 bool drawn) {
  double height = LineHeight(font);
  for (std::size_t i = 0; i < cells.size(); ++i)
    height = std::max(height, WrappedHeight(FromWords(cells[i]), font, columns.widths[i] - kCellPadding));
  return std::max(height, drawn ? kDrawingHeight : 0.0) + kCellPadding;
}

double HeadHeight(const DrawnRows& table, const Columns& columns) {
  return RowHeight(table.heads, PageFont(kSmallestPoints, true), columns, false);
}

double NoteHeight(const std::string& note, double width) {
  return 1.3 * WrappedHeight(FromWords(note), PageFont(kTextPoints), width);
}

double NotesHeight(const DrawnRows& table, double width) {
  double height = table.notes_title.empty() ? 0.0 : 2.0 * LineHeight(PageFont(kHeadingPoints, true));
  for (const std::string& note : table.notes) height += NoteHeight(note, width);
  return height;
}

bool HasDrawing(const DrawnRows& table, std::size_t row) {
  return row < table.sections.size() && !table.sections[row].strips.empty();
}

void DrawCells(QPainter& painter, const std::vector<std::string>& cells, const QFont& font,
               const Columns& columns, double top, double height, std::size_t left_columns) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const QRectF box(columns.lefts[i] + 0.5 * kCellPadding, top, columns.widths[i] - kCellPadding, height);
    DrawWrapped(painter, box, font, FromWords(cells[i]),
                (i < left_columns ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
  }
}

void DrawNotes(QPainter& painter, const DrawnRows& table, QRectF area) {
  painter.setPen(kInkColour);
  if (!table.notes_title.empty()) {
    const double line = LineHeight(PageFont(kHeadingPoints, true));
    area.setTop(area.top() + 0.7 * line);
    DrawWrapped(painter, area, PageFont(kHeadingPoints, true), FromWords(table.notes_title));
    area.setTop(area.top() + 1.3 * line);
  }
  for (const std::string& note : table.notes) {
    DrawWrapped(painter, area, PageFont(kTextPoints), FromWords(note));
    area.setTop(area.top() + NoteHeight(note, area.width()));
  }
}

}  // namespace

void DrawCover(QPainter& painter, const QSizeF& paper, const std::string& title,
               const std::vector<CoverLine>& lines) {
  const QRectF area = TextArea(paper);
  QRectF box = area;
  box.setTop(area.top() + 0.28 * area.height());
  const QFont heading = PageFont(kCoverPoints, true);
  painter.setPen(kInkColour);
  DrawWrapped(painter, box, heading, FromWords(title));
  box.setTop(box.top() + WrappedHeight(FromWords(title), heading, box.width()) + 10.0 * kPagePoint);
  painter.setPen(QPen(kInkColour, 1.5 * kPagePoint));
  painter.drawLine(box.topLeft(), box.topRight());
  box.setTop(box.top() + 24.0 * kPagePoint);
  const QFont font = PageFont(kCoverTextPoints);
  double indent = 0.0;
  for (const CoverLine& line : lines) indent = std::max(indent, WidthOf(FromWords(line.caption), font));
  indent += 18.0 * kPagePoint;
  for (const CoverLine& line : lines) {
    const QRectF value = box.adjusted(indent, 0.0, 0.0, 0.0);
    painter.setPen(kQuietInkColour);
    DrawWrapped(painter, box, font, FromWords(line.caption));
    painter.setPen(kInkColour);
    DrawWrapped(painter, value, font, FromWords(line.value));
    box.setTop(box.top() + WrappedHeight(FromWords(line.value), font, value.width()) + 6.0 * kPagePoint);
  }
}

std::vector<ContentsPlace> PlaceContents(const QSizeF& paper, const std::vector<ContentsLine>& lines) {
  const QRectF area = TextArea(paper);
  const QFont font = PageFont(kContentsPoints);
  const double room = area.width() - WidthOf(QStringLiteral("0000000"), font);
  std::vector<ContentsPlace> places;
  int page = 0;
  double top = area.top() + TitleHeight();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double height = WrappedHeight(FromWords(lines[i].text), font, room);
    if (top + height > area.bottom()) {
      ++page;
      top = area.top() + TitleHeight();
    }
    places.push_back({.line = i, .page = page, .box = QRectF(area.left(), top, area.width(), height)});
    top += height + 4.0 * kPagePoint;
  }
  return places;
}

void DrawContents(QPainter& painter, const QSizeF& paper, const std::string& title,
                  const std::vector<ContentsLine>& lines, const std::vector<ContentsPlace>& places,
                  int page) {
  DrawTitle(painter, paper, title);
  const QFont font = PageFont(kContentsPoints);
  const double number_width = WidthOf(QStringLiteral("0000000"), font);
  const double dot = WidthOf(QStringLiteral("."), font);
  for (const ContentsPlace& place : places) {
    if (place.page != page) continue;
    const ContentsLine& line = lines[place.line];
    const QString text = FromWords(line.text);
    const QString number = QString::number(line.page);
    painter.setPen(kInkColour);
    DrawWrapped(painter, place.box.adjusted(0.0, 0.0, -number_width, 0.0), font, text);
    DrawWrapped(painter, place.box, font, number, Qt::AlignRight | Qt::AlignBottom);
    const double width = WidthOf(text, font);
    if (width > place.box.width() - number_width) continue;
    const double from = place.box.left() + width + 2.0 * dot;
    const double to = place.box.right() - WidthOf(number, font) - 2.0 * dot;
    const QString dots(std::max(0, static_cast<int>((to - from) / dot)), QLatin1Char('.'));
    painter.setPen(kQuietInkColour);
    DrawWrapped(painter, QRectF(from, place.box.top(), to - from + dot, place.box.height()), font, dots,
                Qt::AlignRight | Qt::AlignVCenter);
  }
}

std::vector<std::size_t> PagesOfTable(const QSizeF& paper, const DrawnRows& table) {
  const QRectF area = TextArea(paper);
  const Columns columns = ColumnsOf(paper, table);
  const QFont font = PageFont(kTextPoints);
  const double first = area.top() + TitleHeight() + HeadHeight(table, columns);
  std::vector<std::size_t> ends;
  double top = first;
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const double height = RowHeight(table.rows[row], font, columns, HasDrawing(table, row));
    if (top + height > area.bottom() && top > first) {
      ends.push_back(row);
      top = first;
    }
    top += height;
  }
  ends.push_back(table.rows.size());
  // Notes that find no room below the last row take a page of their own.
  if (top + NotesHeight(table, area.width()) > area.bottom() && top > first)
    ends.push_back(table.rows.size());
  return ends;
}

void DrawTablePage(QPainter& painter, const QSizeF& paper, const DrawnRows& table,
                   const std::vector<std::size_t>& ends, int page) {
  DrawTitle(painter, paper, table.title);
  const QRectF area = TextArea(paper);
  const Columns columns = ColumnsOf(paper, table);
  const auto index = static_cast<std::size_t>(page);
  const std::size_t begin = index == 0 ? 0 : ends[index - 1];
  double top = area.top() + TitleHeight();
  if (begin < ends[index]) {
    const double head = HeadHeight(table, columns);
    painter.fillRect(QRectF(area.left(), top, area.width(), head), kHeadTint);
    painter.setPen(kInkColour);
    DrawCells(painter, table.heads, PageFont(kSmallestPoints, true), columns, top, head, table.left_columns);
    top += head;
  }
  const QFont font = PageFont(kTextPoints);
  for (std::size_t row = begin; row < ends[index]; ++row) {
    const bool drawn = HasDrawing(table, row);
    const double height = RowHeight(table.rows[row], font, columns, drawn);
    painter.setPen(kInkColour);
    DrawCells(painter, table.rows[row], font, columns, top, height, table.left_columns);
    if (drawn) {
      const QRectF box(columns.lefts[table.drawing_column] + 0.5 * kCellPadding,
                       top + 0.5 * (height - kDrawingHeight) + 0.5 * kCellPadding,
                       columns.widths[table.drawing_column] - kCellPadding, kDrawingHeight - kCellPadding);
      DrawInPixels(painter, box,
                   [&](const QRectF& pixels) { DrawSectionStrips(painter, pixels, table.sections[row]); });
    }
    top += height;
    painter.setPen(QPen(kVerticalGridColour, kRule));
    painter.drawLine(QPointF(area.left(), top), QPointF(area.right(), top));
  }
  if (index + 1 == ends.size()) DrawNotes(painter, table, area.adjusted(0.0, top - area.top(), 0.0, 0.0));
}

void DrawFrontFoot(QPainter& painter, const QSizeF& paper, const std::string& left,
                   const std::string& number) {
  const QRectF box(kInset, paper.height() - 0.52 * kPageInch, paper.width() - 2.0 * kInset, 0.19 * kPageInch);
  painter.setPen(kQuietInkColour);
  DrawWrapped(painter, box, PageFont(kSmallestPoints), FromWords(left), Qt::AlignLeft | Qt::AlignVCenter);
  DrawWrapped(painter, box, PageFont(kSmallestPoints), FromWords(number), Qt::AlignRight | Qt::AlignVCenter);
}

}  // namespace velmar::presentation
