#include "presentation/drawing/section_drawing.h"

#include <QPainter>
#include <algorithm>
#include <array>

#include "elements/catalogue.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "presentation/drawing/colours.h"
#include "presentation/drawing/hatches.h"
#include "presentation/drawing/section_layout.h"
#include "presentation/drawing/text.h"
#include "presentation/texts/paper_text.h"

namespace velmar::presentation {
namespace {

constexpr double kBorderWidth = 1.0;
constexpr double kSmallestNumberPixels = 9.0;
constexpr double kArrowHead = 7.0;
constexpr double kLargestDot = 1.8;
const QColor kHighlightTint(0x16, 0x25, 0x4B, 0x38);

void DrawStrips(QPainter& painter, const SectionLayout& layout, const Section& section,
                const SectionOptions& options) {
  for (std::size_t i = 0; i < section.strips.size(); ++i) {
    FillStrip(painter, layout.strips[i], section.strips[i].kind, section.horizontal);
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::NoBrush);
  // Sheets thinner than a few pixels would drown in black borders.
  for (const QRectF& strip : layout.strips) {
    const double depth = section.horizontal ? strip.height() : strip.width();
    painter.setPen(QPen(Qt::black, std::clamp(depth / 5.0, 0.25, kBorderWidth)));
    painter.drawRect(strip);
  }
  if (options.highlighted_number == 0) return;
  for (std::size_t i = 0; i < section.strips.size(); ++i) {
    if (section.strips[i].number != options.highlighted_number) continue;
    painter.fillRect(layout.strips[i], kHighlightTint);
    const double depth = std::min(layout.strips[i].width(), layout.strips[i].height());
    painter.setPen(QPen(kInkColour, std::min(2.0 * kBorderWidth, depth / 2.0)));
    painter.drawRect(layout.strips[i]);
  }
}

void DrawNumber(QPainter& painter, const QRectF& box, int number, bool highlighted) {
  if (highlighted) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(kInkColour);
    painter.drawRoundedRect(box, 2.0, 2.0);
  }
  painter.setPen(highlighted ? kPaperColour : kInkColour);
  DrawTextIn(painter, box, Qt::AlignCenter, QString::number(number));
}

void DrawLabels(QPainter& painter, const SectionLayout& layout, const SectionOptions& options) {
  painter.setRenderHint(QPainter::Antialiasing);
  double thinnest = kLargestDot / 0.45;
  for (const QRectF& strip : layout.strips) {
    thinnest = std::min(thinnest, std::min(strip.width(), strip.height()));
  }
  const double dot = 0.45 * thinnest;
  for (const SectionLabel& label : layout.labels) {
    painter.setPen(QPen(kLeaderColour, kBorderWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(label.leader);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kInkColour);
    painter.drawEllipse(label.leader.last(), dot, dot);
  }
  painter.setFont(PixelFont(layout.font, layout.label_px, true));
  for (const SectionLabel& label : layout.labels) {
    DrawNumber(painter, label.box, label.number, label.number == options.highlighted_number);
  }
}

void DrawArrowHead(QPainter& painter, const QPointF& tip, const QPointF& back) {
  const QPointF side(back.y() * 0.35, back.x() * 0.35);
  const std::array<QPointF, 3> head = {tip, tip + back + side, tip + back - side};
  painter.setPen(Qt::NoPen);
  painter.setBrush(kQuietInkColour);
  painter.drawPolygon(head.data(), 3);
}

/// The thickness of each layer beside it; where there is no room for the figures a tick alone.
void DrawChain(QPainter& painter, const SectionLayout& layout, const Section& section,
               elements::DocumentLanguage language) {
  const QRectF& body = layout.body;
  const double em = layout.text_px;
  painter.setFont(layout.font);
  for (const SectionDimension& dimension : layout.dimensions) {
    painter.setPen(QPen(kQuietInkColour, 0.5 * kBorderWidth));
    for (const double at : {dimension.from, dimension.to}) {
      if (section.horizontal) {
        painter.drawLine(QPointF(body.right() + 0.2 * em, at), QPointF(body.right() + 0.6 * em, at));
      } else {
        painter.drawLine(QPointF(at, body.bottom() + 0.2 * em), QPointF(at, body.bottom() + 0.6 * em));
      }
    }
    const QString text =
        FromWords(ForPaper(FormatShortest(RoundToEven(dimension.thickness_mm, 4)), language));
    const double room = dimension.to - dimension.from;
    if (room < (section.horizontal ? em : WidthOf(text, layout.font) + 0.2 * em)) continue;
    painter.setPen(kInkColour);
    if (section.horizontal) {
      DrawTextIn(painter, QRectF(body.right() + 0.7 * em, dimension.from, layout.chain, room),
                 Qt::AlignLeft | Qt::AlignVCenter, text);
    } else {
      DrawTextIn(painter, QRectF(dimension.from, body.bottom() + 0.3 * em, room, 1.3 * em), Qt::AlignCenter,
                 text);
    }
  }
}

void DrawSide(QPainter& painter, const QRectF& box, const QString& text, double turned) {
  painter.save();
  painter.translate(box.center());
  painter.rotate(turned);
  const QSizeF size = turned == 0.0 ? box.size() : box.size().transposed();
  DrawTextIn(painter, QRectF(QPointF(-size.width() / 2.0, -size.height() / 2.0), size), Qt::AlignCenter,
             text);
  painter.restore();
}

void DrawSides(QPainter& painter, const SectionLayout& layout, const Section& section,
               const SectionOptions& options) {
  const QRectF& body = layout.body;
  const double em = layout.text_px;
  painter.setFont(layout.font);
  painter.setPen(kQuietInkColour);
  if (section.horizontal) {
    const QSizeF size(body.width(), 1.3 * em);
    DrawSide(painter, QRectF(body.topLeft() - QPointF(0.0, 1.5 * em), size), options.near_side, 0.0);
    DrawSide(painter, QRectF(body.bottomLeft() + QPointF(0.0, 0.2 * em), size), options.far_side, 0.0);
  } else {
    const QSizeF size(1.3 * em, body.height());
    DrawSide(painter, QRectF(body.topLeft() - QPointF(1.5 * em, 0.0), size), options.near_side, -90.0);
    DrawSide(painter, QRectF(body.topRight() + QPointF(0.2 * em, 0.0), size), options.far_side, -90.0);
  }
}

void DrawDimension(QPainter& painter, const SectionLayout& layout, const Section& section,
                   elements::DocumentLanguage language) {
  const double em = layout.text_px;
  const QRectF& body = layout.body;
  painter.setFont(layout.font);
  painter.setRenderHint(QPainter::Antialiasing);
  const QString end = DimensionText(section.thickness_mm, language);
  const QString origin = QStringLiteral("0 (mm)");
  const QPointF off =
      section.horizontal ? QPointF(0.9 * em + layout.chain, 0.0) : QPointF(0.0, 0.8 * em + layout.chain);
  const QPointF from = (section.horizontal ? body.topRight() : body.bottomLeft()) + off;
  const QPointF to = body.bottomRight() + off;
  const QPointF back = section.horizontal ? QPointF(0.0, kArrowHead) : QPointF(kArrowHead, 0.0);
  painter.setPen(QPen(kQuietInkColour, kBorderWidth));
  painter.drawLine(from, to);
  DrawArrowHead(painter, from, back);
  DrawArrowHead(painter, to, -back);
  painter.setPen(kInkColour);
  if (section.horizontal) {
    const double x = from.x() + 0.7 * em;
    const double width = layout.arrow.right() - x;
    DrawTextIn(painter, QRectF(x, from.y() - 0.2 * em, width, 1.3 * em), Qt::AlignLeft | Qt::AlignVCenter,
               origin);
    DrawTextIn(painter, QRectF(x, to.y() - 1.1 * em, width, 1.3 * em), Qt::AlignLeft | Qt::AlignVCenter, end);
  } else {
    const QRectF line(body.left(), from.y() + 0.4 * em, body.width(), 1.3 * em);
    DrawTextIn(painter, line, Qt::AlignLeft | Qt::AlignVCenter, origin);
    DrawTextIn(painter, line, Qt::AlignRight | Qt::AlignVCenter, end);
  }
}

void DrawList(QPainter& painter, const SectionLayout& layout, const SectionOptions& options) {
  const double number_width = WidthOf(QStringLiteral("00"), layout.font);
  for (const SectionListEntry& entry : layout.list) {
    const bool highlighted = entry.number == options.highlighted_number;
    painter.setFont(PixelFont(layout.font, layout.text_px, true));
    DrawNumber(painter, QRectF(entry.box.topLeft(), QSizeF(number_width + 2.0, entry.box.height())),
               entry.number, highlighted);
    painter.setFont(PixelFont(layout.font, layout.text_px, highlighted));
    painter.setPen(kInkColour);
    const QRectF name = entry.box.adjusted(number_width + layout.text_px, 0.0, 0.0, 0.0);
    DrawTextIn(painter, name, Qt::AlignLeft | Qt::AlignVCenter,
               Fitted(entry.text, painter.font(), name.width()));
  }
}

std::optional<LayerPlace> PlaceOf(const Section& section, int number) {
  const auto found = std::ranges::find(section.strips, number, &Strip::number);
  if (number == 0 || found == section.strips.end()) return std::nullopt;
  return found->place;
}

}  // namespace

SectionOptions PaperOptions(const elements::Setup& setup, const Words& words,
                            elements::DocumentLanguage language) {
  SectionOptions options{.smallest_number_px = kSmallestNumberPixels, .paper = true, .language = language};
  if (!setup.calculation) return options;
  const elements::Orientation orientation = elements::RowOf(*setup.calculation).orientation;
  if (elements::IsHorizontal(orientation)) {
    options.near_side = FromWords(words(kAboveRow));
    options.far_side = FromWords(words(kBelowRow));
    return options;
  }
  const bool lining = orientation == elements::Orientation::kLining;
  options.near_side = FromWords(words(lining ? kOutsideRow : kInsideRow));
  options.far_side = FromWords(words(lining ? kInsideRow : kOutsideRow));
  return options;
}

void DrawSection(QPainter& painter, const QRectF& area, const Section& section,
                 const SectionOptions& options) {
  if (area.isEmpty()) return;
  painter.save();
  painter.fillRect(area, kPaperColour);
  if (!section.strips.empty()) {
    const SectionLayout layout = LayoutOf(area, section, painter.font(), options);
    DrawStrips(painter, layout, section, options);
    if (options.strips_alone) return painter.restore();
    DrawLabels(painter, layout, options);
    DrawChain(painter, layout, section, options.language);
    DrawDimension(painter, layout, section, options.language);
    DrawSides(painter, layout, section, options);
    DrawList(painter, layout, options);
  }
  painter.restore();
}

void DrawSectionStrips(QPainter& painter, const QRectF& area, const Section& section) {
  if (area.isEmpty() || section.strips.empty() || section.thickness_mm <= 0.0) return;
  SectionLayout layout;
  for (const Strip& strip : section.strips) {
    const double from = strip.position_mm / section.thickness_mm;
    const double depth = strip.thickness_mm / section.thickness_mm;
    layout.strips.push_back(
        section.horizontal
            ? QRectF(area.left(), area.top() + from * area.height(), area.width(), depth * area.height())
            : QRectF(area.left() + from * area.width(), area.top(), depth * area.width(), area.height()));
  }
  painter.save();
  DrawStrips(painter, layout, section, {});
  painter.restore();
}

std::optional<LayerPlace> LayerAt(const QPointF& position, const QRectF& area, const Section& section,
                                  const QFont& font, const SectionOptions& options) {
  const SectionLayout layout = LayoutOf(area, section, font, options);
  for (std::size_t i = 0; i < layout.strips.size(); ++i) {
    if (layout.strips[i].contains(position)) return PlaceOf(section, section.strips[i].number);
  }
  for (const SectionLabel& label : layout.labels) {
    if (label.box.contains(position)) return PlaceOf(section, label.number);
  }
  for (const SectionListEntry& entry : layout.list) {
    if (entry.box.contains(position)) return PlaceOf(section, entry.number);
  }
  return std::nullopt;
}

}  // namespace velmar::presentation
