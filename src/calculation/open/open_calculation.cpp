#include "calculation/open/open_calculation.h"

#include <type_traits>

namespace velmar::calculation {
namespace {

/// Whether the two differ at most in what no result depends on.
bool HaveTheSameResult(elements::Setup one, const elements::Setup& other) {
  one.information = other.information;
  one.further = other.further;
  return one == other;
}

}  // namespace

/// `setup` with its totals takes the place of the old ones, or nothing changes.
void OpenCalculation::Put(elements::Setup setup) {
  static_assert(std::is_nothrow_move_assignable_v<elements::Setup>);
  totals_ = ComputeTotals(setup);
  setup_ = std::move(setup);
}

void OpenCalculation::Take(elements::Setup changed, bool keep_result, const std::optional<Step>& named) {
  history_.Note(setup_, changed, named);
  Put(std::move(changed));
  AfterChange(keep_result);
}

void OpenCalculation::GoTo(elements::Setup setup) {
  const bool keep_result = HaveTheSameResult(setup_, setup);
  Put(std::move(setup));
  AfterChange(keep_result);
}

void OpenCalculation::Undo() {
  if (history_.ToUndo()) GoTo(history_.Undo(setup_));
}

void OpenCalculation::Redo() {
  if (history_.ToRedo()) GoTo(history_.Redo(setup_));
}

void OpenCalculation::AfterChange(bool keep_result) {
  if (!keep_result) result_.reset();
  is_saved_ = false;
  is_touched_ = true;
  Tell();
}

void OpenCalculation::Replace(elements::Setup setup) {
  Put(std::move(setup));
  history_.Clear();
  result_.reset();
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
    Put(std::move(prepared));
    is_saved_ = false;
  }
  RunOutcome outcome = RunCalculation(setup_, loss_factor_before, ask);
  result_ = outcome.result;
  if (!result_) is_saved_ = false;
  is_touched_ = false;
  Tell();
  return outcome;
}

void OpenCalculation::Prepare() {
  elements::Setup prepared = setup_;
  PrepareRun(prepared);
  if (prepared == setup_) return;
  Put(std::move(prepared));
  result_.reset();
  is_saved_ = false;
  Tell();
}

bool OpenCalculation::TakeResult(const elements::Setup& setup, elements::ResultSet result) {
  if (result_ || setup != setup_) return false;
  result_ = std::move(result);
  Tell();
  return true;
}

void OpenCalculation::Tell() {
  if (listener_) listener_();
}

}  // namespace velmar::calculation
