#include "presentation/export/chart_svg.h"

#include <QPainter>

#include "presentation/export/drawn_picture.h"

namespace velmar::presentation {

std::string ChartSvg(const CurveChart& chart, const std::string& title) {
  constexpr QSizeF kMillimetres{160.0, 100.0};
  return SvgOf(kMillimetres, title,
               [&](QPainter& painter, const QRectF& area) { DrawCurveChart(painter, area, chart); });
}

}  // namespace velmar::presentation
