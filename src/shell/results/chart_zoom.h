#pragma once

#include <QPointF>

#include "presentation/drawing/curve_chart.h"

namespace velmar::shell {

// The part of a chart that is seen, closer, farther and beside; never beyond the whole, and never closer than
// four bands. Places are shares of the plot: 0 left or at the foot, 1 right or on top.

/// `window` with `factor` times its width and height, so that `place` stays where it is.
presentation::ChartWindow Zoomed(const presentation::ChartWindow& window, double factor,
                                 const QPointF& place);

/// `window` moved by `by`, in shares of itself.
presentation::ChartWindow Moved(const presentation::ChartWindow& window, const QPointF& by);

}  // namespace velmar::shell
