#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <vector>

#include "presentation/drawing/chart_scale.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/drawing/curve_look.h"

namespace velmar::presentation {

/// One entry of the legend: a sample in `colour` with `text` behind it.
struct LegendEntry {
  QString text{};
  QColor colour{};
  CurveLook look{};
  QRectF box{};
};

/// Where the pieces of a chart stand.
struct ChartLayout {
  QFont font{};
  double text_px = 0.0;
  QRectF plot{};
  QRectF title{};
  QRectF frequency_axis{};
  QRectF frequency_labels{};
  ChartWindow window{};  ///< what `plot` shows
  QRectF level_axis{};   ///< a column; its text runs upwards
  std::vector<LegendEntry> legend{};

  /// The point of `band` at logical height `y` (0 to 90); beyond the plot where the window leaves it out.
  QPointF At(double band, double y) const;
};

/// The places of the pieces of `chart` within `area`. The legend takes as many lines as its words need.
ChartLayout LayoutOf(const QRectF& area, const CurveChart& chart, const QFont& font);

}  // namespace velmar::presentation
