#include "presentation/drawing/curve_look.h"

#include <QPainter>
#include <array>

#include "presentation/drawing/colours.h"

namespace velmar::presentation {
namespace {

constexpr double kRadius = 3.0;

QPolygonF Corners(const QPointF& centre, CurveMark mark) {
  const auto at = [&centre](double x, double y) { return centre + QPointF(x * kRadius, y * kRadius); };
  switch (mark) {
    case CurveMark::kTriangle:
    case CurveMark::kOpenTriangle:
      return {{at(0.0, -1.3), at(1.2, 0.9), at(-1.2, 0.9)}};
    case CurveMark::kDiamond:
      return {{at(0.0, -1.35), at(1.35, 0.0), at(0.0, 1.35), at(-1.35, 0.0)}};
    default:
      return {{at(-0.95, -0.95), at(0.95, -0.95), at(0.95, 0.95), at(-0.95, 0.95)}};
  }
}

bool IsOpen(CurveMark mark) {
  return mark == CurveMark::kRing || mark == CurveMark::kOpenSquare || mark == CurveMark::kOpenTriangle;
}

}  // namespace

CurveLook FurtherLook(std::size_t index) {
  constexpr std::array kMarks = {CurveMark::kRing, CurveMark::kCross, CurveMark::kOpenSquare,
                                 CurveMark::kOpenTriangle};
  return {Qt::DotLine, kMarks[index % kMarks.size()]};
}

void DrawDashed(QPainter& painter, const QPolygonF& line, const CurveLook& look, const QColor& colour) {
  if (line.size() < 2) return;
  painter.setPen(QPen(colour, look.width, look.dashes, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
}

void DrawMark(QPainter& painter, const QPointF& centre, const CurveLook& look, const QColor& colour) {
  if (!look.mark) return;
  const CurveMark mark = *look.mark;
  painter.setPen(IsOpen(mark) || mark == CurveMark::kCross ? QPen(colour, 1.2) : QPen(Qt::NoPen));
  painter.setBrush(IsOpen(mark) ? kPaperColour : colour);
  if (mark == CurveMark::kDot || mark == CurveMark::kRing) {
    painter.drawEllipse(centre, kRadius, kRadius);
  } else if (mark == CurveMark::kCross) {
    painter.drawLine(centre - QPointF(kRadius, kRadius), centre + QPointF(kRadius, kRadius));
    painter.drawLine(centre - QPointF(kRadius, -kRadius), centre + QPointF(kRadius, -kRadius));
  } else {
    painter.drawPolygon(Corners(centre, mark));
  }
  painter.setBrush(Qt::NoBrush);
}

}  // namespace velmar::presentation
