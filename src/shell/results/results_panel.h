#pragma once

#include <QWidget>
#include <optional>

#include "calculation/open_calculation.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/drawing/section.h"
#include "shell/fields/boxes.h"
#include "shell/results/chart_overlay.h"

class QCheckBox;
class QLabel;
class QSplitter;
class QToolButton;

namespace velmar::shell {

class ChartView;
class SectionView;
class SingleNumbersPanel;
class VariantStrip;

/// The right side of the window (`prnFrame1`): single-number results, curve chart, section drawing. Shows the
/// open calculation and changes nothing of it.
class ResultsPanel : public QWidget {
  Q_OBJECT
 public:
  /// @param open and what follows outlive the panel
  /// @param overlay further curves; none: the chart shows the result alone
  ResultsPanel(const calculation::OpenCalculation& open, const Speech& speech, ChartOverlay* overlay,
               QWidget* parent = nullptr);

  /// Shows set-up and result as they are now.
  void Show();
  void Highlight(const std::optional<presentation::LayerPlace>& place);

  /// The chart as it is shown, with its scale and overlays; nothing without a result or a curve.
  const std::optional<presentation::CurveChart>& Chart() const { return shown_; }

  /// The variants stand at the panel's foot from now on, and their curves in the chart.
  void AddFoot(VariantStrip* variants);

  QSplitter* Splitter() const { return splitter_; }

 signals:
  /// The layer of the section under the mouse; nothing: none.
  void LayerHovered(const std::optional<velmar::presentation::LayerPlace>& place);

 private:
  QWidget* MakeRatings();
  /// The button that opens the table of all ratings, and the table.
  QWidget* MakeNumbers();
  QWidget* MakeChart();
  QWidget* MakeSection();
  void ShowRatings(const elements::Setup& setup, const elements::ResultSet* result);
  /// Shows every rating of the result in the table that the button opens.
  void ShowNumbers();
  void ShowChart();

  const calculation::OpenCalculation& open_;
  const Speech& speech_;
  ChartOverlay* overlay_ = nullptr;
  QLabel* rating_name_ = nullptr;
  QLabel* rating_ = nullptr;
  QLabel* due_ = nullptr;
  QLabel* c_ = nullptr;
  QLabel* ctr_ = nullptr;
  QWidget* improvement_frame_ = nullptr;
  QLabel* improvement_ = nullptr;
  QWidget* impact_frame_ = nullptr;
  QLabel* impact_improvement_ = nullptr;
  QToolButton* open_numbers_ = nullptr;
  SingleNumbersPanel* numbers_ = nullptr;
  QCheckBox* autoscale_ = nullptr;
  ChartView* chart_ = nullptr;
  std::optional<presentation::CurveChart> shown_{};
  QWidget* section_frame_ = nullptr;
  SectionView* section_ = nullptr;
  QSplitter* splitter_ = nullptr;
  VariantStrip* variants_ = nullptr;
};

}  // namespace velmar::shell
