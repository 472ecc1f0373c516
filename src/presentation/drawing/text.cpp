#include "presentation/drawing/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmar::presentation {

QFont PixelFont(const QFont& base, double pixels, bool bold) {
  QFont font(base);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

double PixelsOf(const QFont& font) {
  if (font.pixelSize() > 0) return font.pixelSize();
  return font.pointSizeF() * 96.0 / 72.0;
}

double WidthOf(const QString& text, const QFont& font) { return QFontMetricsF(font).horizontalAdvance(text); }

QString FromWords(const std::string& text) { return QString::fromStdString(text); }

QString Fitted(const QString& text, const QFont& font, double width) {
  return QFontMetricsF(font).elidedText(text, Qt::ElideRight, width);
}

void DrawTextIn(QPainter& painter, const QRectF& box, int flags, const QString& text) {
  painter.drawText(box, flags | Qt::TextSingleLine | Qt::TextDontClip, text);
}

}  // namespace velmar::presentation
