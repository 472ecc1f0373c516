#pragma once

#include "presentation/drawing/chart_layout.h"
#include "presentation/drawing/chart_scale.h"

class QPainter;

namespace velmar::presentation {

/// Grid, axes and the line of the highlighted band.
void DrawAxes(QPainter& painter, const ChartLayout& layout, const CurveChart& chart);

/// Numbers and names of the axes, and the title. A chart that is not seen whole carries round decibels and as
/// many frequencies as there is room for.
void DrawAxisLabels(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                    const ChartRange& range);

}  // namespace velmar::presentation
