#include "manual_builder/index_pages.h"

#include <QCollator>
#include <QFont>
#include <QPainter>
#include <algorithm>
#include <map>
#include <stdexcept>

namespace velmar::manual {
namespace {

constexpr int kColumns = 2;
constexpr double kGap = 24.0;
constexpr double kLineHeight = 14.5;
constexpr double kTop = PageLook::kTopMargin + 44.0;
constexpr double kBottom = PageLook::kPage.height() - PageLook::kFootHeight - 6.0;
constexpr double kColumnWidth = (PageLook::kText.width() - kGap) / kColumns;
constexpr int kLinesAColumn = static_cast<int>((kBottom - kTop) / kLineHeight);
constexpr int kMostPages = 6;

const QColor kInk(0x16, 0x25, 0x4B);

QFont Letters(int points, bool bold) {
  QFont letters("Liberation Sans");
  letters.setPixelSize(points);
  letters.setBold(bold);
  letters.setHintingPreference(QFont::PreferNoHinting);
  return letters;
}

/// Of a term that stands on many pages those that speak of it most.
std::vector<int> MostTelling(const std::map<int, int>& hits) {
  std::vector<std::pair<int, int>> pages(hits.begin(), hits.end());
  std::ranges::stable_sort(pages, [](const auto& a, const auto& b) { return a.second > b.second; });
  if (pages.size() > kMostPages) pages.resize(kMostPages);
  std::vector<int> told;
  for (const auto& [page, count] : pages) told.push_back(page);
  std::ranges::sort(told);
  return told;
}

}  // namespace

IndexPages::IndexPages(std::vector<std::string> terms, const ManualPages& text, int first) {
  for (const std::string& term : terms) {
    const std::map<int, int> hits = text.PagesOf(QString::fromStdString(term));
    if (hits.empty()) throw std::runtime_error("the index names what the text does not hold: " + term);
    QString pages;
    for (const int page : MostTelling(hits))
      pages += (pages.isEmpty() ? "" : ", ") + QString::number(page + first);
    lines_.push_back({QString::fromStdString(term), pages});
  }
  QCollator order{QLocale(QLocale::Italian)};
  order.setCaseSensitivity(Qt::CaseInsensitive);
  std::ranges::sort(lines_,
                    [&order](const Line& a, const Line& b) { return order.compare(a.term, b.term) < 0; });
}

int IndexPages::Count() const {
  constexpr int kLinesAPage = kColumns * kLinesAColumn;
  return (static_cast<int>(lines_.size()) + kLinesAPage - 1) / kLinesAPage;
}

void IndexPages::PaintPage(QPainter& painter, int page) const {
  painter.setPen(kInk);
  painter.setFont(Letters(17, true));
  painter.drawText(QPointF(PageLook::kSideMargin, PageLook::kTopMargin + 17.0), "Indice analitico");
  painter.setPen(Qt::black);
  painter.setFont(Letters(9, false));
  const int from = page * kColumns * kLinesAColumn;
  const int to = std::min(from + kColumns * kLinesAColumn, static_cast<int>(lines_.size()));
  for (int i = from; i < to; ++i) {
    const int place = i - from;
    const double left = PageLook::kSideMargin + place / kLinesAColumn * (kColumnWidth + kGap);
    const QRectF box(left, kTop + place % kLinesAColumn * kLineHeight, kColumnWidth, kLineHeight);
    const Line& line = lines_[static_cast<std::size_t>(i)];
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, line.term);
    painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, line.pages);
  }
}

}  // namespace velmar::manual
