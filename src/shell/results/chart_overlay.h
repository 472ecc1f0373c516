#pragma once

#include <QObject>

#include "presentation/drawing/curve_chart.h"

namespace velmar::shell {

/// Further curves over the chart of a result.
class ChartOverlay : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

  /// Lays them over `chart` before it is shown.
  virtual void LayOver(presentation::CurveChart& chart) = 0;

 signals:
  /// The chart is to be drawn with others.
  void Changed();
};

}  // namespace velmar::shell
