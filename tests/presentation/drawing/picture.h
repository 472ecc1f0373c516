#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <functional>

namespace velmar::presentation {

/// What `paint` leaves on a sheet of a colour that no drawing uses.
class Picture {
 public:
  /// @param scale device pixels a unit of the painter
  Picture(QSize size, const std::function<void(QPainter&, const QRectF&)>& paint, int scale = 1)
      : image_(size * scale, QImage::Format_RGB32), scale_(scale) {
    image_.setDevicePixelRatio(scale);
    image_.fill(Qt::cyan);
    QPainter painter(&image_);
    paint(painter, QRectF(QPointF(), QSizeF(size)));
  }

  QColor At(const QPointF& point) const { return image_.pixelColor((point * scale_).toPoint()); }

  /// How many device pixels of `area` have `colour`.
  int Count(const QColor& colour, const QRectF& area) const {
    int count = 0;
    const QRect pixels =
        QRectF(area.topLeft() * scale_, area.size() * scale_).toRect().intersected(image_.rect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
      for (int x = pixels.left(); x <= pixels.right(); ++x) {
        if (image_.pixelColor(x, y) == colour) ++count;
      }
    }
    return count;
  }
  int Count(const QColor& colour) const { return Count(colour, QRectF(image_.rect())); }

 private:
  QImage image_;
  int scale_;
};

}  // namespace velmar::presentation
