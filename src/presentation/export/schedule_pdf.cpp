#include "presentation/export/schedule_pdf.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <utility>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/front_pages.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/text.h"
#include "presentation/export/pdf_outline.h"
#include "presentation/export/pdf_properties.h"

namespace velmar::presentation {
namespace {

constexpr int kDotsPerInch = 1200;
constexpr double kPointsPerUnit = 1.0 / kPagePoint;
/// Above the frame of a chapter's page.
const QRectF kHeadingBand(0.55 * kPageInch, 0.33 * kPageInch, 0.0, 0.19 * kPageInch);

DrawnRows RowsOf(const Schedule& schedule, const std::vector<PageChapter>& chapters, const Words& words) {
  const ScheduleWords set = ScheduleWordsOf(words);
  DrawnRows table{.title = set.table,
                  .heads = ScheduleHeads(words),
                  .weights = ScheduleWeights(),
                  .drawing_column = kScheduleDrawingColumn};
  bool outside = false;
  auto chapter = chapters.begin();
  std::vector<std::string> failed;
  for (const ScheduleElement& element : schedule.elements) {
    if (!element.failure.empty()) {
      failed.push_back(element.file + ": " + element.failure);
      continue;
    }
    table.rows.push_back(ScheduleCells(element, schedule.language));
    table.sections.push_back((chapter++)->section);
    outside |= element.outside_range;
  }
  if (outside) table.notes.push_back(set.outside);
  if (!failed.empty()) table.notes_title = set.failed;
  table.notes.insert(table.notes.end(), failed.begin(), failed.end());
  return table;
}

/// The pages of the document, one after the other.
class Pages {
 public:
  Pages(const Schedule& schedule, const std::vector<PageChapter>& chapters, const Words& words)
      : schedule_(schedule), chapters_(chapters), words_(ScheduleWordsOf(words)), writer_(&buffer_) {
    table_ = RowsOf(schedule, chapters, words);
    Count();
    buffer_.open(QIODevice::WriteOnly);
    writer_.setTitle(FromWords(schedule.cover.title));
    writer_.setCreator(QStringLiteral("VELMARpro"));
    writer_.setResolution(kDotsPerInch);
    writer_.setPageSize(QPageSize(QPageSize::A4));
    // The pages bring their own margins.
    writer_.setPageMargins({0.0, 0.0, 0.0, 0.0});
    painter_.begin(&writer_);
  }

  std::string Draw() {
    DrawFront();
    DrawChapters();
    painter_.end();
    std::vector<PdfBookmark> bookmarks;
    for (const ContentsLine& line : contents_) bookmarks.push_back({line.text, line.page - 1});
    std::vector<PdfLink> links;
    for (const ContentsPlace& place : places_) {
      links.push_back({.page = 1 + place.page,
                       .box = QRectF(place.box.topLeft() * kPointsPerUnit, place.box.size() * kPointsPerUnit),
                       .target = contents_[place.line].page - 1});
    }
    std::string pdf = WithOutline(buffer_.data().toStdString(), bookmarks, links);
    AddProperties(pdf, schedule_.properties);
    return pdf;
  }

 private:
  /// Where everything stands, before anything is drawn.
  void Count() {
    contents_.push_back({.text = words_.table});
    for (const PageChapter& chapter : chapters_) contents_.push_back({.text = chapter.heading});
    places_ = PlaceContents(Upright(), contents_);
    table_ends_ = PagesOfTable(OnItsSide(), table_);
    contents_pages_ = places_.back().page + 1;
    count_ = 1 + contents_pages_;
    contents_.front().page = count_ + 1;
    count_ += static_cast<int>(table_ends_.size());
    for (std::size_t i = 0; i < chapters_.size(); ++i) {
      contents_[i + 1].page = count_ + 1;
      count_ += PageCountOf(Inches(), chapters_[i].page);
    }
  }

  static QSizeF Inches() { return QPageSize::size(QPageSize::A4, QPageSize::Inch); }
  static QSizeF Upright() { return Inches() * kPageInch; }
  static QSizeF OnItsSide() { return Upright().transposed(); }

  /// Draws one page of those before the chapters.
  template <typename DrawPage>
  void FrontPage(QPageLayout::Orientation orientation, const DrawPage& draw) {
    writer_.setPageOrientation(orientation);
    if (drawn_++ > 0) writer_.newPage();
    painter_.save();
    painter_.scale(kDotsPerInch / kPageInch, kDotsPerInch / kPageInch);
    painter_.setRenderHint(QPainter::Antialiasing);
    const QSizeF paper = orientation == QPageLayout::Landscape ? OnItsSide() : Upright();
    draw(paper);
    if (drawn_ > 1) {
      const ScheduleCover& cover = schedule_.cover;
      DrawFrontFoot(
          painter_, paper, cover.title + (cover.date.empty() ? "" : " · " + cover.date),
          words_.page + " " + std::to_string(drawn_) + " " + words_.of + " " + std::to_string(count_));
    }
    painter_.restore();
  }

  void DrawFront() {
    const ScheduleCover& cover = schedule_.cover;
    std::vector<CoverLine> lines;
    for (const auto& [caption, value] :
         {std::pair{&words_.project, &cover.project}, std::pair{&words_.client, &cover.client},
          std::pair{&words_.studio, &cover.studio}, std::pair{&words_.date, &cover.date}}) {
      if (!value->empty()) lines.push_back({*caption, *value});
    }
    FrontPage(QPageLayout::Portrait,
              [&](const QSizeF& paper) { DrawCover(painter_, paper, cover.title, lines); });
    for (int page = 0; page < contents_pages_; ++page) {
      FrontPage(QPageLayout::Portrait, [&](const QSizeF& paper) {
        DrawContents(painter_, paper, words_.contents, contents_, places_, page);
      });
    }
    for (std::size_t page = 0; page < table_ends_.size(); ++page) {
      FrontPage(QPageLayout::Landscape, [&](const QSizeF& paper) {
        DrawTablePage(painter_, paper, table_, table_ends_, static_cast<int>(page));
      });
    }
  }

  void DrawChapters() {
    writer_.setPageOrientation(QPageLayout::Portrait);
    for (const PageChapter& chapter : chapters_) {
      PaginaDiStampa page = chapter.page;
      page.foot.before = drawn_;
      page.foot.all = count_;
      const int count = PageCountOf(Inches(), page);
      for (int index = 0; index < count; ++index) {
        writer_.newPage();
        ++drawn_;
        ComponiPagina(painter_, kDotsPerInch, Inches(), page, index);
        DrawHeading(chapter.heading, index == 0);
      }
    }
  }

  void DrawHeading(const std::string& heading, bool first) {
    painter_.save();
    painter_.scale(kDotsPerInch / kPageInch, kDotsPerInch / kPageInch);
    QRectF band = kHeadingBand;
    band.setWidth(Upright().width() - 2.0 * band.left());
    // The pages behind the first begin with their title.
    if (!first) band.setLeft(band.center().x());
    painter_.setPen(kInkColour);
    const QFont font = PageFont(first ? kTextPoints : kSmallestPoints, first);
    DrawWrapped(painter_, band, font, Fitted(FromWords(heading), font, band.width()),
                (first ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    painter_.restore();
  }

  const Schedule& schedule_;
  const std::vector<PageChapter>& chapters_;
  ScheduleWords words_;
  DrawnRows table_{};
  std::vector<std::size_t> table_ends_{};
  std::vector<ContentsLine> contents_{};
  std::vector<ContentsPlace> places_{};
  int contents_pages_ = 0;
  int count_ = 0;
  int drawn_ = 0;
  QBuffer buffer_{};
  QPdfWriter writer_;
  QPainter painter_{};
};

}  // namespace

std::string SchedulePdf(const Schedule& schedule, const std::vector<PageChapter>& chapters,
                        const Words& words) {
  return Pages(schedule, chapters, words).Draw();
}

}  // namespace velmar::presentation
