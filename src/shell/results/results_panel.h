#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "calculation/open/open_calculation.h"
#include "presentation/drawing/curve_chart.h"
#include "presentation/drawing/section.h"
#include "shell/results/chart_overlay.h"
#include "shell/windows/boxes.h"
#include "validation/known_accuracy.h"

class QCheckBox;
class QLabel;
class QSplitter;
class QToolButton;

namespace velmar::shell {

class ChartView;
class ContinuousCalculation;
class DifferenceLine;
class RequirementLine;
class ResultNotesView;
class SectionView;
class SingleNumbersPanel;

/// The right side of the window (`prnFrame1`): single-number results, curve chart, section drawing. Shows the
/// open calculation; of it only the required rating is entered here.
class ResultsPanel : public QWidget {
  Q_OBJECT
 public:
  /// @param open and what follows outlive the panel
  /// @param overlay further curves; none: the chart shows the result alone
  /// @param accuracy what is known of the errors of the models
  ResultsPanel(calculation::OpenCalculation& open, const Speech& speech,
               const validation::KnownAccuracy& accuracy, ChartOverlay* overlay, QWidget* parent = nullptr);

  /// Lays the curves of `overlay`, which outlives the panel, over those that are there.
  void AddOverlay(ChartOverlay& overlay);
  /// Puts `widget` below everything, across the whole width.
  void AddFoot(QWidget* widget);

  /// Shows what `continuous` says too, from now on; it outlives the panel.
  void Follow(const ContinuousCalculation& continuous);

  /// Shows set-up and result as they are now.
  void Show();
  void Highlight(const std::optional<presentation::LayerPlace>& place);

  /// The chart as it is shown, with its scale and overlays; nothing without a result or a curve.
  const std::optional<presentation::CurveChart>& Chart() const { return shown_; }

  /// Where the required rating is entered.
  RequirementLine* Requirement() const { return requirement_; }

  QSplitter* Splitter() const { return splitter_; }

 signals:
  /// The layer of the section under the mouse; nothing: none.
  void LayerHovered(const std::optional<velmar::presentation::LayerPlace>& place);
  /// A layer of the section was clicked, or chosen by the keyboard.
  void LayerChosen(const velmar::presentation::LayerPlace& place);

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
  /// What the screen shows of `chart` besides its curves.
  void AddMarks(presentation::CurveChart& chart) const;

  calculation::OpenCalculation& open_;
  const Speech& speech_;
  const validation::KnownAccuracy& accuracy_;
  std::vector<ChartOverlay*> overlays_{};
  QLabel* rating_name_ = nullptr;
  QLabel* rating_ = nullptr;
  QLabel* due_ = nullptr;
  QLabel* c_ = nullptr;
  QLabel* ctr_ = nullptr;
  QWidget* improvement_frame_ = nullptr;
  QLabel* improvement_ = nullptr;
  QWidget* impact_frame_ = nullptr;
  QLabel* impact_improvement_ = nullptr;
  ResultNotesView* notes_ = nullptr;
  QToolButton* open_numbers_ = nullptr;
  SingleNumbersPanel* numbers_ = nullptr;
  QCheckBox* autoscale_ = nullptr;
  ChartView* chart_ = nullptr;
  QLabel* values_ = nullptr;
  RequirementLine* requirement_ = nullptr;
  DifferenceLine* difference_ = nullptr;
  const ContinuousCalculation* continuous_ = nullptr;
  std::optional<presentation::CurveChart> shown_{};
  QWidget* section_frame_ = nullptr;
  SectionView* section_ = nullptr;
  QSplitter* splitter_ = nullptr;
};

}  // namespace velmar::shell
