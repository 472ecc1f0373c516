#pragma once

#include <QPointer>

#include "calculation/open/open_calculation.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/results/chart_overlay.h"
#include "shell/structures/comparison_window.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// The comparison window behind its commands, and the curves that it lays over the main chart: they come and
/// go with it.
class ComparisonCommand : public ChartOverlay {
  Q_OBJECT
 public:
  /// @param open to live as long as this
  ComparisonCommand(const calculation::OpenCalculation& open, WindowTools tools,
                    structures::LibrarySource library);

  /// Opens the window beside the result that stands; one that is open already comes to the front.
  void Show(QWidget* parent);

  /// Lays over `chart` what is compared.
  void LayOver(presentation::CurveChart& chart) override;

 public slots:
  /// The set-up or its result are others now: the window follows, and closes where another calculation was
  /// chosen.
  void Follow();
  /// Another project was opened: nothing of the comparison is left.
  void Close();
  /// The window closes, and its curves go with the result, of which whoever calls this tells.
  void ResultGone();

 private:
  structures::ComparedWork WorkNow() const;
  void Forget();

  const calculation::OpenCalculation& open_;
  WindowTools tools_;
  structures::LibrarySource library_;
  QPointer<structures::ComparisonWindow> window_;
  std::optional<elements::Calculation> calculation_{};  ///< that the window was opened for
  structures::Overlay overlay_;
};

}  // namespace velmar::shell
