#pragma once

#include <QColor>
#include <array>

#include "presentation/drawing/curve_look.h"

namespace velmar::presentation {

/// How a curve of a comparison is told from the others: by colour, and by dashes and marks where colours are
/// not seen.
struct ComparedLook {
  QColor colour{};
  CurveLook look{};
};

/// Of the structures that were added to a comparison; no two are alike, nor like a curve that is always
/// there.
inline constexpr std::array kComparedLooks = {
    ComparedLook{QColor{0x00, 0x72, 0xB2}, {Qt::DashLine, CurveMark::kRing}},
    ComparedLook{QColor{0xB0, 0x3A, 0x2E}, {Qt::DashDotLine, CurveMark::kOpenSquare}},
    ComparedLook{QColor{0x00, 0x83, 0x8F}, {Qt::DotLine, CurveMark::kOpenTriangle}},
    ComparedLook{QColor{0x6B, 0x7A, 0x00}, {Qt::DashLine, CurveMark::kCross}},
    ComparedLook{QColor{0x5E, 0x35, 0xB1}, {Qt::DashDotLine, CurveMark::kDiamond}},
    ComparedLook{QColor{0x45, 0x5A, 0x64}, {Qt::DashDotDotLine, CurveMark::kSquare}},
};

}  // namespace velmar::presentation
