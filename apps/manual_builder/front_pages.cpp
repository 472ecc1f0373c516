#include "manual_builder/front_pages.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

namespace velmar::manual {
namespace {

constexpr int kContents = 1;  ///< the page on which they begin
constexpr int kChapterLevel = 2;
constexpr int kLowestLevel = 3;
constexpr double kContentsTop = PageLook::kTopMargin + 44.0;
constexpr double kChapterHeight = 21.0;
constexpr double kSectionHeight = 14.5;
constexpr double kSectionIndent = 14.0;
constexpr double kBottom = PageLook::kPage.height() - PageLook::kFootHeight - 6.0;

const QColor kInk(0x16, 0x25, 0x4B);
const QColor kQuiet(0x6B, 0x72, 0x80);

QFont Letters(int points, bool bold = false) {
  QFont letters("Liberation Sans");
  letters.setPixelSize(points);
  letters.setBold(bold);
  letters.setHintingPreference(QFont::PreferNoHinting);
  return letters;
}

double HeightOf(const PlacedHeading& heading) {
  return heading.heading.level == kChapterLevel ? kChapterHeight : kSectionHeight;
}

}  // namespace

FrontPages::FrontPages(QString title, QString subtitle, QString edition,
                       const std::vector<PlacedHeading>& headings)
    : title_(std::move(title)), subtitle_(std::move(subtitle)), edition_(std::move(edition)) {
  int page = kContents;
  double top = kContentsTop;
  for (const PlacedHeading& heading : headings) {
    if (heading.heading.level > kLowestLevel) continue;
    // A chapter does not stand alone at the foot.
    const double needed = HeightOf(heading) + (heading.heading.level == kChapterLevel ? kSectionHeight : 0.0);
    if (top + needed > kBottom) {
      ++page;
      top = PageLook::kTopMargin;
    }
    lines_.push_back({heading, page, top});
    top += HeightOf(heading);
  }
}

int FrontPages::Count() const { return lines_.empty() ? kContents : lines_.back().page + 1; }

void FrontPages::PaintFront(QPainter& painter) const {
  const QRectF sheet(PageLook::kSideMargin, 0.0, PageLook::kText.width(), PageLook::kPage.height());
  painter.fillRect(QRectF(PageLook::kSideMargin, 236.0, 48.0, 4.0), kInk);
  painter.setPen(kInk);
  painter.setFont(Letters(40, true));
  painter.drawText(sheet.translated(0.0, 254.0), Qt::AlignLeft | Qt::AlignTop, "VELMARpro");
  painter.setFont(Letters(20));
  painter.drawText(sheet.translated(0.0, 306.0), Qt::AlignLeft | Qt::AlignTop, title_);
  painter.setPen(kQuiet);
  painter.setFont(Letters(12));
  painter.drawText(sheet.translated(0.0, 346.0).adjusted(0.0, 0.0, -60.0, 0.0),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, subtitle_);
  painter.drawText(sheet.adjusted(0.0, 0.0, 0.0, -PageLook::kFootHeight), Qt::AlignLeft | Qt::AlignBottom,
                   edition_);
}

void FrontPages::PaintPage(QPainter& painter, int page) const {
  if (page < kContents) return PaintFront(painter);
  painter.setPen(kInk);
  if (page == kContents) {
    painter.setFont(Letters(17, true));
    painter.drawText(QPointF(PageLook::kSideMargin, PageLook::kTopMargin + 17.0), "Indice");
  }
  for (const Line& line : lines_) {
    if (line.page != page) continue;
    const bool chapter = line.heading.heading.level == kChapterLevel;
    const QFont letters = chapter ? Letters(11, true) : Letters(10);
    const QFontMetricsF measure(letters);
    const double indent = chapter ? 0.0 : kSectionIndent;
    const double base = line.top + HeightOf(line.heading) - 5.0;
    const QString title = QString::fromStdString(line.heading.heading.title);
    const QString number = QString::number(line.heading.page + Count() + 1);
    painter.setFont(letters);
    painter.setPen(chapter ? kInk : Qt::black);
    painter.drawText(QPointF(PageLook::kSideMargin + indent, base), title);
    const double right = PageLook::kSideMargin + PageLook::kText.width();
    painter.drawText(QPointF(right - measure.horizontalAdvance(number), base), number);
    const double from = PageLook::kSideMargin + indent + measure.horizontalAdvance(title) + 6.0;
    const double to = right - measure.horizontalAdvance(number) - 6.0;
    if (chapter || to <= from) continue;
    painter.setPen(QPen(kQuiet, 0.7, Qt::DotLine));
    painter.drawLine(QPointF(from, base - 1.0), QPointF(to, base - 1.0));
  }
}

std::vector<PlacedLink> FrontPages::Links() const {
  std::vector<PlacedLink> links;
  for (const Line& line : lines_) {
    links.push_back({line.page,
                     QRectF(PageLook::kSideMargin, line.top, PageLook::kText.width(), HeightOf(line.heading)),
                     line.heading.heading.anchor});
  }
  return links;
}

}  // namespace velmar::manual
