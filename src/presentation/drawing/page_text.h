#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <functional>

class QPainter;

namespace velmar::presentation {

/// The page is laid out in tenths of a point.
inline constexpr double kPagePoint = 10.0;
inline constexpr double kPageInch = 72.0 * kPagePoint;
/// Charts and sections are drawn in pixels of 1/96 inch.
inline constexpr double kPagePixel = kPageInch / 96.0;

inline constexpr double kTitlePoints = 16.0;
inline constexpr double kResultPoints = 12.0;
inline constexpr double kHeadingPoints = 10.0;
inline constexpr double kTextPoints = 8.0;
inline constexpr double kSmallestPoints = 7.0;

/// The page's font: Arial, or what stands in for it.
QFont PageFont(double points, bool bold = false);

/// Lets `draw` fill `area` in pixels of 1/96 inch, with the font of charts and sections.
void DrawInPixels(QPainter& painter, const QRectF& area,
                  const std::function<void(const QRectF& pixels)>& draw);

/// Distance of two lines of `font`.
double LineHeight(const QFont& font);

/// Height of `text` broken to lines of `width`.
double WrappedHeight(const QString& text, const QFont& font, double width);

/// `text` itself when it fits `width` and `height` broken to lines; else what fits of it, with an ellipsis.
QString CutToFit(const QString& text, const QFont& font, double width, double height);

/// Draws `text` broken to the lines of `box`, cut where it does not fit. @param flags Qt::Alignment flags
void DrawWrapped(QPainter& painter, const QRectF& box, const QFont& font, const QString& text,
                 int flags = Qt::AlignLeft | Qt::AlignTop);

}  // namespace velmar::presentation
