#pragma once

#include <QColor>
#include <array>

namespace velmar::presentation {

/// How a curve is told from the others: by colour, and by dashes where colours are not seen.
struct CurveLook {
  QColor colour{};
  Qt::PenStyle style = Qt::SolidLine;
};

/// Of the structures that were added to a comparison; no two are alike, nor like a curve that is always
/// there.
inline constexpr std::array kComparedLooks = {
    CurveLook{QColor{0x00, 0x72, 0xB2}, Qt::DashLine},
    CurveLook{QColor{0xB0, 0x3A, 0x2E}, Qt::DashDotLine},
    CurveLook{QColor{0x00, 0x83, 0x8F}, Qt::DotLine},
    CurveLook{QColor{0x6B, 0x7A, 0x00}, Qt::DashLine},
    CurveLook{QColor{0x5E, 0x35, 0xB1}, Qt::DashDotLine},
    CurveLook{QColor{0x45, 0x5A, 0x64}, Qt::DashDotDotLine},
};

}  // namespace velmar::presentation
