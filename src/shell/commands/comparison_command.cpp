#include "shell/commands/comparison_command.h"

#include <utility>

#include "calculation/open/variants.h"
#include "elements/catalogue.h"
#include "elements/variants.h"
#include "foundation/message_rows.h"
#include "shell/windows/docked.h"

namespace velmar::shell {

ComparisonCommand::ComparisonCommand(const calculation::OpenCalculation& open, WindowTools tools,
                                     structures::LibrarySource library)
    : open_(open), tools_(std::move(tools)), library_(std::move(library)) {}

void ComparisonCommand::Show(QWidget* parent) {
  calculation_ = open_.Setup().calculation;
  if (!calculation_) return;
  if (window_) {
    window_->parentWidget()->raise();
    window_->setFocus();
    return;
  }
  const auto draw = [this](const structures::Overlay& overlay) {
    overlay_ = overlay;
    emit Changed();
  };
  window_ =
      new structures::ComparisonWindow(tools_, library_, elements::RowOf(*calculation_).family, draw, parent);
  window_->setAttribute(Qt::WA_DeleteOnClose);
  // One that is closed while it stands behind another says nothing of its end.
  connect(window_, &QDialog::finished, this, &ComparisonCommand::Forget);
  connect(window_, &QObject::destroyed, this, &ComparisonCommand::Forget);
  Follow();
  StandBeside(window_, parent, structures::ComparisonWindow::kPreferredWidth);
}

structures::ComparedWork ComparisonCommand::WorkNow() const {
  structures::ComparedWork work;
  const auto& result = open_.Result();
  if (!result || !calculation_) return work;
  work.calculated = presentation::ComparedResult(tools_.words(kCalculatedCurveRow), *result, *calculation_);
  const auto is_impact = [](elements::Calculation calculation) {
    return elements::RowOf(calculation).family == elements::Family::kImpact;
  };
  for (const elements::Variant& variant : VariantsOf(open_.Setup().further)) {
    const auto setup = calculation::SetupOfVariant(elements::Setup(), variant);
    const auto kept = variant.Result();
    if (!setup || !setup->calculation || !kept) continue;
    if (is_impact(*setup->calculation) != is_impact(*calculation_)) continue;
    if (auto curve = presentation::ComparedVariant(variant.name, *kept, *setup->calculation))
      work.variants.push_back(std::move(*curve));
  }
  return work;
}

void ComparisonCommand::Follow() {
  if (!window_) return;
  if (open_.Setup().calculation != calculation_) return ResultGone();
  window_->Follow(WorkNow());
  overlay_ = window_->Current();
}

void ComparisonCommand::LayOver(presentation::CurveChart& chart) { structures::LayOver(chart, overlay_); }

void ComparisonCommand::Forget() {
  if (std::exchange(overlay_, {}).comparison.curves.empty()) return;
  emit Changed();
}

void ComparisonCommand::Close() {
  if (window_) window_->close();
}

void ComparisonCommand::ResultGone() {
  overlay_ = {};
  if (window_) window_->ResultGone();
}

}  // namespace velmar::shell
