#include "presentation/drawing/page_annex.h"

#include <QPainter>
#include <QPicture>
#include <algorithm>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/page_blocks.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/section_drawing.h"
#include "presentation/drawing/section_layout.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kInset = 0.55 * kPageInch;
constexpr double kFootTop = 0.52 * kPageInch;
constexpr double kFootBottom = 0.33 * kPageInch;
/// The line of a studio over the foot.
constexpr double kStudioFoot = 0.14 * kPageInch;
constexpr double kGap = 0.06 * kPageInch;
constexpr double kSectionHeight = 6.0 * kPageInch;

/// The size of `picture` in tenths of a point.
QSizeF OnPaper(const PagePicture& picture) {
  return picture.image.isNull() ? QSizeF() : picture.millimetres * (kPageInch / 25.4);
}

/// The layers as a table that breaks across pages.
PageTable LayerRows(const PaginaDiStampa& page) {
  PageTable table{.heads = {"", page.structure_heading, ""}};
  for (const StructureBlock& block : page.structure) {
    if (!block.heading.empty() || !block.mass.empty()) table.rows.push_back({"", block.heading, block.mass});
    for (const StructureLine& line : block.lines)
      table.rows.push_back({line.number > 0 ? std::to_string(line.number) : "", line.name, line.amount});
  }
  for (const std::string& note : page.structure_notes) table.rows.push_back({"", note, ""});
  return table;
}

}  // namespace

double FootHeight(const PaginaDiStampa& page) {
  return kInset + (page.studio.words.footer.empty() ? 0.0 : kStudioFoot);
}

SectionOptions PageSectionOptions(const PaginaDiStampa& page) {
  SectionOptions options = page.section_options;
  options.list_names = false;
  options.smallest_number_px = kSmallestPoints * 96.0 / 72.0;
  return options;
}

double SectionLabelPixels(const QRectF& area, const PaginaDiStampa& page, const SectionOptions& options) {
  const QFont font = PixelFont(QFont(QStringLiteral("Arial")), kTextPoints * 96.0 / 72.0);
  const SectionLayout layout =
      LayoutOf(QRectF(QPointF(), area.size() / kPagePixel), page.section, font, options);
  return layout.labels.empty() ? options.smallest_number_px : layout.label_px;
}

PageAnnex::PageAnnex(const QSizeF& paper, const PaginaDiStampa& page, const PageRest& rest)
    : paper_(paper), title_(page.title), foot_(page.foot), studio_foot_(page.studio.words.footer) {
  foot_height_ = FootHeight(page);
  AddRest(page, rest);
  AddData(page.data);
  AddSignature(page.studio);
}

void PageAnnex::AddPage() {
  pages_.emplace_back();
  top_ = kInset;
}

QRectF PageAnnex::Room() const {
  return {kInset, top_, paper_.width() - 2.0 * kInset, paper_.height() - foot_height_ - top_};
}

void PageAnnex::Need(double height) {
  if (pages_.empty() || (height > Room().height() && top_ > kInset)) AddPage();
}

void PageAnnex::AddText(const std::string& text, double points, bool bold, double space_above) {
  const QFont font = PageFont(points, bold);
  const QString words = FromWords(text);
  const double height = WrappedHeight(words, font, paper_.width() - 2.0 * kInset);
  // A heading stands with what it heads.
  Need(space_above + height + (bold ? 4.0 * LineHeight(font) : 0.0));
  if (top_ > kInset) top_ += space_above;
  const QRectF box(Room().topLeft(), QSizeF(Room().width(), height));
  pages_.back().emplace_back([=](QPainter& painter) {
    painter.setPen(kInkColour);
    DrawWrapped(painter, box, font, words);
  });
  top_ += height + 0.3 * kGap;
}

void PageAnnex::AddTable(const PageTable& table, const std::vector<double>& weights, bool first_left,
                         std::size_t first_row) {
  QPicture nowhere;
  QPainter measuring(&nowhere);
  for (std::size_t row = first_row; row < table.rows.size();) {
    if (pages_.empty()) AddPage();
    PageTable rest = table;
    rest.rows.erase(rest.rows.begin(), rest.rows.begin() + static_cast<std::ptrdiff_t>(row));
    // The table keeps its size of text: it may break.
    const TableStyle style{.points = kTextPoints - 0.5,
                           .weights = weights,
                           .first_left = first_left,
                           .words_left = true,
                           .largest_height = Room().height(),
                           .shrinks = false};
    const auto draw = [rest, style, area = Room()](QPainter& painter) {
      return DrawTable(painter, area, rest, style);
    };
    const DrawnTable drawn = draw(measuring);
    if (drawn.next_row == 0) {
      if (top_ <= kInset) return;  // a row taller than a page
      AddPage();
      continue;
    }
    pages_.back().emplace_back([draw](QPainter& painter) { draw(painter); });
    top_ += drawn.height + kGap;
    row += drawn.next_row;
    if (row < table.rows.size()) AddPage();
  }
}

void PageAnnex::AddRest(const PaginaDiStampa& page, const PageRest& rest) {
  for (const PageField& field : rest.fields) {
    AddText(field.caption, kHeadingPoints, true, 2.0 * kGap);
    AddText(field.value, kTextPoints, false, 0.0);
  }
  if (rest.elements_from > 0) AddTable(page.elements, rest.weights, rest.first_left, rest.elements_from);
  if (rest.section) {
    Need(kSectionHeight);
    const QRectF box(Room().topLeft(), QSizeF(Room().width(), std::min(kSectionHeight, Room().height())));
    pages_.back().emplace_back([section = page.section, options = PageSectionOptions(page),
                                box](QPainter& painter) {
      DrawInPixels(painter, box, [&](const QRectF& area) { DrawSection(painter, area, section, options); });
    });
    top_ += box.height() + kGap;
  }
  if (rest.structure) AddTable(LayerRows(page), {0.6, 7.0, 2.0}, false, 0);
}

void PageAnnex::AddData(const CalculationData& data) {
  if (data.title.empty()) return;
  AddText(data.title, kResultPoints, true, 3.0 * kGap);
  for (const DataField& field : data.fields)
    AddText(field.caption + ": " + field.value, kTextPoints, false, 0.0);
  for (const DataTable& table : data.tables) {
    AddText(table.title, kTextPoints + 1.0, true, 2.0 * kGap);
    AddTable({.heads = table.heads, .rows = table.rows}, table.weights, false, 0);
  }
  AddText(data.references_title, kTextPoints + 1.0, true, 2.0 * kGap);
  for (const std::string& reference : data.references) AddText(reference, kTextPoints, false, 0.0);
}

void PageAnnex::AddSignature(const PageStudio& studio) {
  if (!studio.Signs()) return;
  const double line = LineHeight(PageFont(kTextPoints));
  const QSizeF signature = OnPaper(studio.signature);
  const double height = std::max(3.5 * line, signature.height() + 0.5 * line);
  Need(height + 4.0 * kGap);
  top_ += 3.0 * kGap;
  const QRectF box(Room().topLeft(), QSizeF(Room().width(), height));
  pages_.back().emplace_back([studio, box, line, signature](QPainter& painter) {
    painter.setPen(QPen(kVerticalGridColour, 0.01 * kPageInch));
    painter.drawLine(box.topLeft(), box.topRight());
    const QRectF middle(box.left() + 0.3 * box.width(), box.top() + 0.3 * line, 0.4 * box.width(),
                        1.2 * line);
    painter.setPen(kQuietInkColour);
    DrawWrapped(painter, middle, PageFont(kTextPoints), FromWords(studio.signer_caption));
    painter.setPen(kInkColour);
    DrawWrapped(painter, middle.translated(0.0, line), PageFont(kTextPoints, true), FromWords(studio.signer));
    DrawWrapped(painter, middle.translated(0.0, 2.0 * line), PageFont(kTextPoints),
                FromWords(studio.words.register_number));
    DrawWrapped(painter, {box.left(), box.top() + 0.3 * line, 0.28 * box.width(), line},
                PageFont(kTextPoints), FromWords(studio.date));
    if (studio.signature.image.isNull()) return;
    painter.drawImage(QRectF(QPointF(box.right() - signature.width(), box.top() + 0.4 * line), signature),
                      studio.signature.image);
  });
  top_ += height + kGap;
}

double DrawStudioHead(QPainter& painter, const QRectF& area, const PageStudio& studio) {
  if (!studio.HasHead()) return 0.0;
  const QSizeF logo = OnPaper(studio.logo);
  const double left = logo.isEmpty() ? 0.0 : logo.width() + 3.0 * kGap;
  const double width = area.width() - left;
  const QFont bold = PageFont(kHeadingPoints, true);
  const QFont plain = PageFont(kTextPoints);
  const QString name = FromWords(studio.words.name);
  const QString address = FromWords(studio.words.address);
  const double name_height = name.isEmpty() ? 0.0 : WrappedHeight(name, bold, width);
  const double address_height = address.isEmpty() ? 0.0 : WrappedHeight(address, plain, width);
  const double height = std::max(logo.height(), name_height + address_height);
  if (!studio.logo.image.isNull())
    painter.drawImage(QRectF({area.left(), area.top() + (height - logo.height()) / 2.0}, logo),
                      studio.logo.image);
  const double top = area.top() + (height - name_height - address_height) / 2.0;
  painter.setPen(kInkColour);
  DrawWrapped(painter, {area.left() + left, top, width, name_height}, bold, name);
  painter.setPen(kQuietInkColour);
  DrawWrapped(painter, {area.left() + left, top + name_height, width, address_height}, plain, address);
  return height;
}

void PageAnnex::Draw(QPainter& painter, int index) const {
  painter.setPen(QPen(kInkColour, 0.01 * kPageInch));
  painter.setBrush(Qt::NoBrush);
  const double frame = 0.3 * kPageInch;
  painter.drawRect(QRectF(QPointF(), paper_).adjusted(frame, frame, -frame, -frame));
  painter.setPen(kQuietInkColour);
  DrawWrapped(painter, QRectF(kInset, kFootBottom, paper_.width() - 2.0 * kInset, kFootTop - kFootBottom),
              PageFont(kSmallestPoints), FromWords(title_), Qt::AlignLeft | Qt::AlignVCenter);
  for (const Piece& piece : pages_.at(static_cast<std::size_t>(index))) piece(painter);
}

void PageAnnex::DrawFoot(QPainter& painter, int index) const {
  const QRectF box(kInset, paper_.height() - kFootTop, paper_.width() - 2.0 * kInset, kFootTop - kFootBottom);
  const QFont font = PageFont(kSmallestPoints);
  const QString number =
      FromWords(foot_.page + " " + std::to_string(foot_.before + index + 1) + " " + foot_.of + " " +
                std::to_string(foot_.all > 0 ? foot_.all : PageCount() + 1));
  painter.setPen(kQuietInkColour);
  if (!studio_foot_.empty())
    DrawWrapped(painter, box.translated(0.0, -kStudioFoot), font, FromWords(studio_foot_),
                Qt::AlignHCenter | Qt::AlignVCenter);
  if (!foot_.page.empty()) DrawWrapped(painter, box, font, number, Qt::AlignRight | Qt::AlignVCenter);
  const double left = box.width() - WidthOf(number, font) - 2.0 * kGap;
  DrawWrapped(painter, QRectF(box.topLeft(), QSizeF(left, box.height())), font, FromWords(foot_.left),
              Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace velmar::presentation
