#pragma once

#include <QWidget>
#include <optional>

#include "presentation/drawing/curve_chart.h"
#include "shell/fields/boxes.h"
#include "shell/pages/page_context.h"

class QCheckBox;
class QLabel;
class QSplitter;
class QToolButton;

namespace velmar::shell {

class ChartView;
class SectionView;
class SingleNumbersPanel;

/// The right side of the window (`prnFrame1`): single-number results, curve chart, section drawing. Shows the
/// open calculation and changes nothing of it.
class ResultsPanel : public QWidget {
 public:
  explicit ResultsPanel(const PageContext& context, QWidget* parent = nullptr);

  /// Shows set-up and result as they are now.
  void Show();
  void Highlight(const std::optional<presentation::LayerPlace>& place);
  void OnHover(std::function<void(const std::optional<presentation::LayerPlace>&)> on_hover);

  /// The chart as it is shown, with its scale and overlays; nothing without a result or a curve.
  const std::optional<presentation::CurveChart>& Chart() const { return shown_; }

  QSplitter* Splitter() const { return splitter_; }

 private:
  QWidget* MakeRatings();
  QWidget* MakeChart();
  QWidget* MakeSection();
  void ShowRatings(const elements::Setup& setup, const elements::ResultSet* result);
  /// Shows every rating of the result in the table that the button opens.
  void ShowNumbers();
  void ShowChart();

  const PageContext& context_;
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
};

/// The chart that the results panel of `window` shows; nothing when there is none.
std::optional<presentation::CurveChart> ShownChart(const QWidget* window);

}  // namespace velmar::shell
