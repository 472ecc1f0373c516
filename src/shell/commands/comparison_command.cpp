#include "shell/commands/comparison_command.h"

#include <utility>

#include "elements/catalogue.h"
#include "shell/windows/docked.h"

namespace velmar::shell {

ComparisonCommand::ComparisonCommand(const calculation::OpenCalculation& open, WindowTools tools,
                                     structures::LibrarySource library)
    : open_(open), tools_(std::move(tools)), library_(std::move(library)) {}

void ComparisonCommand::Show(QWidget* parent) {
  const auto& calculation = open_.Setup().calculation;
  if (!calculation) return;
  if (window_) window_->close();
  const auto draw = [this](const structures::Overlay& overlay) {
    overlay_ = overlay;
    left_over_ = false;
    emit Changed();
  };
  window_ =
      new structures::ComparisonWindow(tools_, library_, elements::RowOf(*calculation).family, draw, parent);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  connect(window_, &QDialog::finished, this, [this] { left_over_ = true; });
  StandBeside(window_, parent, structures::ComparisonWindow::kPreferredWidth);
}

void ComparisonCommand::LayOver(presentation::CurveChart& chart) {
  const Drawing drawing{chart.values, chart.autoscale};
  if (left_over_ && drawing != last_) overlay_ = {};
  last_ = drawing;
  structures::LayOver(chart, overlay_);
}

void ComparisonCommand::ResultGone() {
  if (window_) window_->ResultGone();
  overlay_ = {};
}

}  // namespace velmar::shell
