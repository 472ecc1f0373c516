#include <QPainter>
#include <QPicture>
#include <algorithm>

#include "presentation/drawing/colours.h"
#include "presentation/drawing/page_annex.h"
#include "presentation/drawing/page_blocks.h"
#include "presentation/drawing/page_text.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/drawing/section_drawing.h"
#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kFrameInset = 0.3 * kPageInch;
constexpr double kContentInset = 0.55 * kPageInch;
constexpr double kGap = 0.08 * kPageInch;
constexpr double kFrameWidth = 0.01 * kPageInch;
constexpr double kBandTableWidth = 2.4 * kPageInch;
constexpr double kTallestChart = 3.8 * kPageInch;
constexpr double kLargestChartPart = 0.44;
constexpr std::size_t kLongLayerList = 14;

/// The height of small text under the results, with a little air below it.
double NoteHeight(const std::string& text, double width) {
  if (text.empty()) return 0.0;
  const QFont font = PageFont(kTextPoints);
  return WrappedHeight(FromWords(text), font, width) + 0.2 * LineHeight(font);
}

/// What is left of the page; blocks take their room from its top.
class Composer {
 public:
  Composer(QPainter& painter, const QSizeF& paper, const PaginaDiStampa& page)
      : painter_(painter),
        page_(page),
        paper_(QPointF(), paper),
        room_(paper_.adjusted(kContentInset, kContentInset, -kContentInset, -FootHeight(page))) {}

  void Compose() {
    DrawFrame();
    DrawStudio();
    DrawTitle();
    DrawProject();
    DrawResult();
    DrawElement();
  }

  /// What found no room.
  const PageRest& Rest() const { return rest_; }

 private:
  void Take(double height) { room_.setTop(std::min(room_.top() + height, room_.bottom())); }
  QRectF Top(double height) const { return {room_.topLeft(), QSizeF(room_.width(), height)}; }
  bool Landscape() const { return paper_.width() > paper_.height(); }

  void DrawFrame() {
    painter_.setPen(QPen(kInkColour, kFrameWidth));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(paper_.adjusted(kFrameInset, kFrameInset, -kFrameInset, -kFrameInset));
  }

  void DrawRule() {
    Take(0.6 * kGap);
    painter_.setPen(QPen(kVerticalGridColour, kFrameWidth));
    painter_.drawLine(room_.topLeft(), room_.topRight());
    Take(0.8 * kGap);
  }

  void DrawStudio() {
    const double height = DrawStudioHead(painter_, room_, page_.studio);
    if (height == 0.0) return;
    Take(height + 0.4 * kGap);
    DrawRule();
  }

  void DrawTitle() {
    if (page_.title.empty()) return;
    // A title keeps one line; one in two languages may take more.
    const QString title = FromWords(page_.title);
    double points = kTitlePoints;
    while (points > kHeadingPoints && WidthOf(title, PageFont(points, true)) > room_.width()) points -= 0.5;
    const QFont font = PageFont(points, true);
    const double height = std::max(LineHeight(font), WrappedHeight(title, font, room_.width()));
    painter_.setPen(kInkColour);
    DrawWrapped(painter_, Top(height), font, title, Qt::AlignHCenter | Qt::AlignVCenter);
    Take(height + kGap);
    DrawRule();
  }

  void DrawProject() {
    DrawFieldsOf(page_.information, kTextPoints);
    DrawFieldsOf(page_.fields, kTextPoints + 1.0);
  }

  /// A value that would take too many lines stands behind this page.
  void DrawFieldsOf(std::vector<PageField> fields, double points) {
    if (fields.empty()) return;
    const int columns = Landscape() ? 3 : 2;
    for (PageField& field : fields) {
      if (!IsLongField(field, room_.width(), points, columns)) continue;
      rest_.fields.push_back(field);
      field.value = "\u2192 " + page_.foot.page + " " + std::to_string(page_.foot.before + 2);
    }
    Take(DrawFields(painter_, room_, fields, points, columns));
    DrawRule();
  }

  /// Chart and result at the left, the bands at the right.
  void DrawResult() {
    const double line = 1.35 * LineHeight(PageFont(kResultPoints, true));
    const bool beside = page_.chart || !page_.bands.heads.empty();
    const double width =
        room_.width() - (beside && !page_.bands.heads.empty() ? kBandTableWidth + 2.0 * kGap : 0.0);
    const double results = line * static_cast<double>(page_.results.size()) +
                           NoteHeight(page_.further_results, width) + NoteHeight(page_.results_note, width);
    if (!beside) {
      DrawResultLines(room_, line);
      Take(results + (page_.results.empty() ? 0.0 : kGap));
      return;
    }
    const double height =
        std::min(kTallestChart, kLargestChartPart * (paper_.height() - 2.0 * kContentInset));
    QRectF left = Top(height);
    if (!page_.bands.heads.empty()) {
      const QRectF bands(left.right() - kBandTableWidth, left.top(), kBandTableWidth, height);
      left.setRight(bands.left() - 2.0 * kGap);
      DrawTable(
          painter_, bands, page_.bands,
          {.points = kTextPoints, .weights = {1.4, 1.0, 1.0}, .first_left = false, .largest_height = height});
    }
    const QRectF chart(left.topLeft(), QSizeF(left.width(), height - results));
    if (page_.chart) {
      DrawInPixels(painter_, chart,
                   [&](const QRectF& area) { DrawCurveChart(painter_, area, *page_.chart); });
      painter_.setPen(QPen(kVerticalGridColour, kFrameWidth));
      painter_.setBrush(Qt::NoBrush);
      painter_.drawRect(chart);
    }
    DrawResultLines({chart.bottomLeft(), QSizeF(left.width(), results)}, line);
    Take(height + kGap);
    DrawRule();
  }

  void DrawResultLines(QRectF area, double line) {
    painter_.setPen(kInkColour);
    for (const std::string& result : page_.results) {
      DrawWrapped(painter_, {area.topLeft(), QSizeF(area.width(), line)}, PageFont(kResultPoints, true),
                  FromWords(result), Qt::AlignLeft | Qt::AlignVCenter);
      area.setTop(area.top() + line);
    }
    for (const std::string* text : {&page_.further_results, &page_.results_note}) {
      if (text->empty()) continue;
      const double height = NoteHeight(*text, area.width());
      DrawWrapped(painter_, {area.topLeft(), QSizeF(area.width(), height)}, PageFont(kTextPoints),
                  FromWords(*text), Qt::AlignLeft | Qt::AlignTop);
      area.setTop(area.top() + height);
    }
  }

  void DrawElement() {
    if (!page_.elements.heads.empty()) {
      const bool facade = page_.structure.empty();
      const std::vector<double> weights =
          facade ? std::vector{3.0, 0.8, 0.9, 0.8, 2.1} : std::vector<double>{};
      const TableStyle style{.points = kTextPoints + 1.0,
                             .weights = weights,
                             .first_left = facade,
                             .largest_height = room_.height()};
      const DrawnTable drawn = DrawTable(painter_, room_, page_.elements, style);
      Take(drawn.height + 1.5 * kGap);
      if (drawn.next_row < page_.elements.rows.size()) {
        rest_.elements_from = drawn.next_row;
        rest_.weights = weights;
        rest_.first_left = facade;
      }
    }
    if (page_.structure.empty()) return;
    const QFont font = PageFont(kHeadingPoints, true);
    painter_.setPen(kInkColour);
    DrawWrapped(painter_, Top(LineHeight(font)), font, FromWords(page_.structure_heading));
    Take(LineHeight(font) + kGap);
    DrawLayers();
  }

  std::size_t LineCount() const {
    std::size_t lines = page_.structure_notes.size();
    for (const StructureBlock& block : page_.structure) lines += block.lines.size() + 1;
    return lines;
  }

  /// The section beside a short list; of a wall with many layers above the list, so that its numbers have
  /// room.
  void DrawLayers() {
    const bool long_list = LineCount() > kLongLayerList;
    const bool above = long_list && !page_.section.horizontal && !Landscape();
    QRectF section = room_;
    QRectF list = room_;
    if (page_.section.strips.empty()) {
      section = {};
    } else if (above) {
      section.setHeight(std::min(0.42 * room_.height(), 2.0 * kPageInch));
      list.setTop(section.bottom() + kGap);
    } else {
      section.setLeft(room_.right() - (long_list && Landscape() ? 0.36 : 0.42) * room_.width());
      section.setHeight(std::min(room_.height(), 3.4 * kPageInch));
      list.setRight(section.left() - 3.0 * kGap);
    }
    if (StructureFits(list.size(), page_)) {
      DrawStructure(painter_, list, page_);
    } else {
      rest_.structure = true;
      section = room_;
    }
    if (section.isEmpty()) return;
    const SectionOptions options = PageSectionOptions(page_);
    if (SectionLabelPixels(section, page_, options) < options.smallest_number_px) {
      rest_.section = true;
      return;
    }
    DrawInPixels(painter_, section,
                 [&](const QRectF& area) { DrawSection(painter_, area, page_.section, options); });
  }

  QPainter& painter_;
  const PaginaDiStampa& page_;
  QRectF paper_;
  QRectF room_;
  PageRest rest_{};
};

/// The pages behind the first.
PageAnnex AnnexOf(const QSizeF& paper_inches, const PaginaDiStampa& page) {
  QPicture nowhere;
  QPainter painter(&nowhere);
  Composer first(painter, paper_inches * kPageInch, page);
  first.Compose();
  return PageAnnex(paper_inches * kPageInch, page, first.Rest());
}

}  // namespace

int PageCountOf(const QSizeF& paper_inches, const PaginaDiStampa& page) {
  return paper_inches.isEmpty() ? 0 : 1 + AnnexOf(paper_inches, page).PageCount();
}

void ComponiPagina(QPainter& painter, double units_per_inch, const QSizeF& paper_inches,
                   const PaginaDiStampa& page, int index) {
  if (units_per_inch <= 0.0 || paper_inches.isEmpty()) return;
  const PageAnnex annex = AnnexOf(paper_inches, page);
  painter.save();
  painter.scale(units_per_inch / kPageInch, units_per_inch / kPageInch);
  painter.setRenderHint(QPainter::Antialiasing);
  if (index == 0) {
    Composer(painter, paper_inches * kPageInch, page).Compose();
  } else {
    annex.Draw(painter, index - 1);
  }
  annex.DrawFoot(painter, index);
  painter.restore();
}

}  // namespace velmar::presentation
