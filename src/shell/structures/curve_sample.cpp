#include "shell/structures/curve_sample.h"

#include <QPainter>
#include <QPixmap>

#include "presentation/drawing/colours.h"

namespace velmar::structures {

QIcon SampleOf(const presentation::CurveLook& look, const QSize& size, bool on_paper) {
  constexpr qreal kSharpness = 3.0;
  constexpr qreal kDotDiameter = 6.0;
  QPixmap sample(size * kSharpness);
  sample.setDevicePixelRatio(kSharpness);
  sample.fill(on_paper ? presentation::kPaperColour : QColor(Qt::transparent));
  QPainter painter(&sample);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre(size.width() / 2.0, size.height() / 2.0);
  painter.setPen(QPen(look.colour, 2.0, look.style));
  painter.drawLine(QPointF(0.0, centre.y()), QPointF(size.width(), centre.y()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.colour);
  painter.drawEllipse(centre, kDotDiameter / 2.0, kDotDiameter / 2.0);
  return QIcon(sample);
}

}  // namespace velmar::structures
