#pragma once

#include <string>

#include "presentation/drawing/curve_chart.h"

namespace velmar::presentation {

/// `chart` as the bytes of an SVG picture of 160 mm by 100 mm, as wide as a column of text. A QGuiApplication
/// must exist.
/// @param title the picture's name for who cannot see it, UTF-8
std::string ChartSvg(const CurveChart& chart, const std::string& title);

}  // namespace velmar::presentation
