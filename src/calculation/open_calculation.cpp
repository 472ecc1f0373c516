#include "calculation/open_calculation.h"

namespace velmar::calculation {

void OpenCalculation::Take(elements::Setup changed, bool keep_result) {
  history_.Note(setup_, changed);
  setup_ = std::move(changed);
  AfterChange(keep_result);
}

void OpenCalculation::Undo() {
  if (!history_.ToUndo()) return;
  setup_ = history_.Undo(setup_);
  AfterChange(/*keep_result=*/false);
}

void OpenCalculation::Redo() {
  if (!history_.ToRedo()) return;
  setup_ = history_.Redo(setup_);
  AfterChange(/*keep_result=*/false);
}

void OpenCalculation::AfterChange(bool keep_result) {
  if (!keep_result) result_.reset();
  totals_ = ComputeTotals(setup_);
  is_saved_ = false;
  is_touched_ = true;
  Tell();
}

void OpenCalculation::Replace(elements::Setup setup) {
  setup_ = std::move(setup);
  history_.Clear();
  result_.reset();
  totals_ = ComputeTotals(setup_);
  is_saved_ = true;
  is_touched_ = false;
  Tell();
}

void OpenCalculation::MarkSaved() {
  is_saved_ = true;
  Tell();
}

void OpenCalculation::DropResult() {
  result_.reset();
  is_saved_ = false;
  Tell();
}

RunOutcome OpenCalculation::Run(const AskToGoOn& ask) {
  const double loss_factor_before = result_ ? result_->loss_factor.value_or(0.0) : 0.0;
  elements::Setup prepared = setup_;
  PrepareRun(prepared);
  if (prepared != setup_) {
    setup_ = std::move(prepared);
    totals_ = ComputeTotals(setup_);
    is_saved_ = false;
  }
  RunOutcome outcome = RunCalculation(setup_, loss_factor_before, ask);
  result_ = outcome.result;
  if (!result_) is_saved_ = false;
  is_touched_ = false;
  Tell();
  return outcome;
}

void OpenCalculation::Tell() {
  if (listener_) listener_();
}

}  // namespace velmar::calculation
