#pragma once

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <cstddef>
#include <optional>

class QPainter;

namespace velmar::presentation {

/// What stands at a curve's values.
enum class CurveMark { kDot, kSquare, kTriangle, kDiamond, kRing, kCross, kOpenSquare, kOpenTriangle };

/// How a curve is told from the others where colours cannot be: by its dashes and its marks.
struct CurveLook {
  Qt::PenStyle dashes = Qt::SolidLine;
  std::optional<CurveMark> mark{};  ///< none: a line alone
  double width = 2.0;
};

inline constexpr CurveLook kCalculatedLook{Qt::SolidLine, CurveMark::kDot};
inline constexpr CurveLook kReferenceLook{Qt::DashLine, std::nullopt, 1.0};
inline constexpr CurveLook kBaseLook{Qt::DotLine, CurveMark::kSquare};
inline constexpr CurveLook kLaboratoryLook{Qt::DashDotLine, CurveMark::kTriangle};
inline constexpr CurveLook kInSituLook{Qt::DashDotDotLine, CurveMark::kDiamond};
inline constexpr CurveLook kFormerLook{Qt::SolidLine, std::nullopt, 1.5};

/// The look of the curve `index` of those of other models: four that differ, then again.
CurveLook FurtherLook(std::size_t index);

/// Draws `line` without marks.
void DrawDashed(QPainter& painter, const QPolygonF& line, const CurveLook& look, const QColor& colour);
/// Draws the mark of `look` at `centre`, if it has one.
void DrawMark(QPainter& painter, const QPointF& centre, const CurveLook& look, const QColor& colour);

}  // namespace velmar::presentation
