#include "presentation/drawing/page_text.h"

#include <QFontMetricsF>
#include <QPainter>

#include "presentation/drawing/text.h"

namespace velmar::presentation {
namespace {

constexpr double kEndless = 1e7;
// Lines of broken text stand a little wider than the metrics of one line say.
constexpr double kRoundingRoom = 4.0;

/// Breaks between words, and within them only where a word alone is wider than the line.
int WrapFlags(const QString& text, const QFont& font, double width) {
  const QFontMetricsF metrics(font);
  for (const QString& word : text.split(QChar(' '))) {
    if (metrics.horizontalAdvance(word) > width) return Qt::TextWrapAnywhere;
  }
  return Qt::TextWordWrap;
}

}  // namespace

QFont PageFont(double points, bool bold) {
  return PixelFont(QFont(QStringLiteral("Arial")), points * kPagePoint, bold);
}

void DrawInPixels(QPainter& painter, const QRectF& area,
                  const std::function<void(const QRectF& pixels)>& draw) {
  painter.save();
  painter.translate(area.topLeft());
  painter.scale(kPagePixel, kPagePixel);
  painter.setFont(PixelFont(QFont(QStringLiteral("Arial")), kTextPoints * 96.0 / 72.0));
  draw(QRectF(QPointF(), area.size() / kPagePixel));
  painter.restore();
}

double LineHeight(const QFont& font) { return QFontMetricsF(font).lineSpacing(); }

double WrappedHeight(const QString& text, const QFont& font, double width) {
  return QFontMetricsF(font)
      .boundingRect(QRectF(0.0, 0.0, width, kEndless), WrapFlags(text, font, width), text)
      .height();
}

QString CutToFit(const QString& text, const QFont& font, double width, double height) {
  const auto fits = [&](const QString& candidate) {
    return WrappedHeight(candidate, font, width) <= height + kRoundingRoom;
  };
  if (fits(text)) return text;
  qsizetype kept = 0;
  qsizetype lost = text.size();
  while (lost - kept > 1) {
    const qsizetype middle = (kept + lost) / 2;
    (fits(text.left(middle).trimmed() + QChar(0x2026)) ? kept : lost) = middle;
  }
  return text.left(kept).trimmed() + QChar(0x2026);
}

void DrawWrapped(QPainter& painter, const QRectF& box, const QFont& font, const QString& text, int flags) {
  painter.setFont(font);
  const int wrap = WrapFlags(text, font, box.width());
  painter.drawText(box, flags | wrap | Qt::TextDontClip, CutToFit(text, font, box.width(), box.height()));
}

}  // namespace velmar::presentation
