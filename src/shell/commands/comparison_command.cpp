#include "shell/commands/comparison_command.h"

#include <utility>

#include "elements/catalogue.h"
#include "shell/results/results_panel.h"

namespace velmar::shell {

ComparisonCommand::ComparisonCommand(const WindowServices& services, WindowTools tools,
                                     structures::LibrarySource library)
    : services_(services), tools_(std::move(tools)), library_(std::move(library)) {}

void ComparisonCommand::Show(QWidget* parent, Qt::WindowModality modality) {
  const auto& calculation = services_.open.Setup().calculation;
  if (!calculation) return;
  if (window_) window_->close();
  const QPointer<QWidget> panel = parent->findChild<QWidget*>("prnFrame1");
  const auto draw = [this, panel](const structures::Overlay& overlay) {
    overlay_ = overlay;
    left_over_ = false;
    if (auto* results = dynamic_cast<ResultsPanel*>(panel.data())) results->Show();
  };
  window_ =
      new structures::ComparisonWindow(tools_, library_, elements::RowOf(*calculation).family, draw, parent);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  window_->setWindowModality(modality);
  QObject::connect(window_, &QDialog::finished, window_, [this] { left_over_ = true; });
  window_->show();
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
