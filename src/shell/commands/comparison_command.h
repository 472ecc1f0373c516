#pragma once

#include <QPointer>

#include "acoustics/bands.h"
#include "calculation/open/open_calculation.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/results/chart_overlay.h"
#include "shell/structures/comparison_window.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// The comparison window behind its commands, and the curves that it lays over the main chart.
class ComparisonCommand : public ChartOverlay {
  Q_OBJECT
 public:
  /// @param open to live as long as this
  ComparisonCommand(const calculation::OpenCalculation& open, WindowTools tools,
                    structures::LibrarySource library);

  /// Opens the window beside the result that stands; one that is open already makes room for it.
  void Show(QWidget* parent);

  /// Lays over `chart` what is to be drawn over it. A window that is closed leaves its curves in the drawing:
  /// they go with the first one that shows other values or another scale.
  void LayOver(presentation::CurveChart& chart) override;

 public slots:
  /// The window closes, and its curves go with the result.
  void ResultGone();

 private:
  /// What tells one drawing of the chart from the next.
  struct Drawing {
    acoustics::Spectrum values{};
    bool autoscale = false;

    bool operator==(const Drawing&) const = default;
  };

  const calculation::OpenCalculation& open_;
  WindowTools tools_;
  structures::LibrarySource library_;
  QPointer<structures::ComparisonWindow> window_;
  structures::Overlay overlay_;
  bool left_over_ = false;  ///< the overlay is that of a window that was closed
  Drawing last_;
};

}  // namespace velmar::shell
