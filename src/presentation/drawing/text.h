#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <string>

class QPainter;

namespace velmar::presentation {

/// `base` with a height of `pixels` in the painter's units. Unhinted, so that text keeps its proportions at
/// every scale.
QFont PixelFont(const QFont& base, double pixels, bool bold = false);

/// Height of `font` in pixels of 1/96 inch.
double PixelsOf(const QFont& font);

/// Width of `text` in the painter's units.
double WidthOf(const QString& text, const QFont& font);

/// `text` as Qt holds it; UTF-8.
QString FromWords(const std::string& text);

/// `text` cut with an ellipsis to `width`.
QString Fitted(const QString& text, const QFont& font, double width);

/// Draws one line into `box`. @param flags Qt::Alignment flags
void DrawTextIn(QPainter& painter, const QRectF& box, int flags, const QString& text);

}  // namespace velmar::presentation
