#pragma once

#include <QPolygonF>

#include "presentation/drawing/chart_layout.h"
#include "presentation/drawing/chart_scale.h"

class QColor;
class QPainter;

namespace velmar::presentation {

/// The reference curve of `chart` shifted by `shift` dB.
QPolygonF ReferenceLine(const ChartLayout& layout, const CurveChart& chart, const ChartRange& range,
                        double shift);

/// `colour` as it is where no rating reads.
QColor Paler(const QColor& colour);

// Each draws its mark where `chart` asks for it.

/// The bands on the unfavourable side, between curve and reference curve.
void DrawDeviations(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                    const ChartRange& range);
/// Their sum and what is to be said of it, in a corner where the curves leave room: at the right under them,
/// or over them for impact sound, unless a curve stands there.
void DrawDeviationSum(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                      const ChartRange& range);
/// The reference curve where it has the required rating.
void DrawRequirement(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                     const ChartRange& range);
/// The curve before the last change.
void DrawFormer(QPainter& painter, const ChartLayout& layout, const CurveChart& chart,
                const ChartRange& range);

}  // namespace velmar::presentation
