#include "shell/structures/curve_sample.h"

#include <QPainter>
#include <QPixmap>

#include "presentation/drawing/colours.h"

namespace velmar::structures {

QIcon SampleOf(const presentation::ComparedLook& look, const QSize& size, bool on_paper) {
  constexpr qreal kSharpness = 3.0;
  QPixmap sample(size * kSharpness);
  sample.setDevicePixelRatio(kSharpness);
  sample.fill(on_paper ? presentation::kPaperColour : QColor(Qt::transparent));
  QPainter painter(&sample);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre(size.width() / 2.0, size.height() / 2.0);
  DrawDashed(painter, {QPointF(0.0, centre.y()), QPointF(size.width(), centre.y())}, look.look, look.colour);
  DrawMark(painter, centre, look.look, look.colour);
  return QIcon(sample);
}

}  // namespace velmar::structures
