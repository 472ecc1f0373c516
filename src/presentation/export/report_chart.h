#pragma once

#include <cstdint>
#include <optional>

#include "presentation/documents/picture.h"
#include "presentation/drawing/curve_chart.h"

namespace velmar::presentation {

/// The chart of a result for paper, where nobody can change the scale: fitted when a curve would leave it.
/// Nothing when the calculation has no curve.
/// @param shown the chart as the screen shows it, with its scale and overlays; without one it is made of
/// `result`
std::optional<CurveChart> WholeChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                       const Words& words, std::optional<CurveChart> shown = std::nullopt);

/// The chart of a result as the picture of a Word report, 116 mm by 66 mm at 300 dots an inch: as wide as the
/// column beside the table of bands in the templates. Nothing when the calculation has no curve. A
/// QGuiApplication must exist. @param shown as in WholeChartOf()
std::optional<Picture> ReportChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                     const Words& words, std::optional<CurveChart> shown = std::nullopt);

/// How wide the chart of a Word report is, in English Metric Units.
std::int64_t ReportChartWidth();

}  // namespace velmar::presentation
