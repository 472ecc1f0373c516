#include "shell/results/continuous_calculation.h"

#include <utility>

#include "foundation/message_rows.h"

namespace velmar::shell {
namespace {

using calculation::RunOutcome;
using calculation::RunStatus;

constexpr int kLookAgainMs = 10;

RunOutcome RunWithoutAsking(const elements::Setup& setup) {
  // A set-up that changed has no loss factor from a run before.
  return calculation::RunCalculation(setup, 0.0, [](const Message&) { return false; });
}

/// Whether completing `setup` would change nothing but the field that is being typed in.
bool IsBeingTyped(const elements::Setup& setup, const elements::Setup& completed,
                  const calculation::History& steps) {
  return steps.IsOpen() && steps.ToUndo().has_value() &&
         steps.ToUndo() == calculation::StepBetween(setup, completed);
}

bool IsNewWork(const calculation::History& steps) { return !steps.ToUndo() && !steps.ToRedo(); }

}  // namespace

ContinuousCalculation::ContinuousCalculation(calculation::OpenCalculation& open, QObject* parent)
    : ContinuousCalculation(open, RunWithoutAsking, parent) {}

ContinuousCalculation::ContinuousCalculation(calculation::OpenCalculation& open, Runner run, QObject* parent)
    : QObject(parent), open_(open), run_(std::move(run)) {
  look_.setInterval(kLookAgainMs);
  connect(&look_, &QTimer::timeout, this, [this] {
    if (outcome_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) Finish();
  });
}

void ContinuousCalculation::Switch(bool on) {
  if (on == on_) return;
  on_ = on;
  tried_.reset();
  former_.reset();
  last_.reset();
  Await(Wait::kNothing);
  Follow();
  emit Changed();
}

void ContinuousCalculation::Follow() {
  if (!on_) return;
  if (!open_.Setup().calculation || IsNewWork(open_.Steps())) {
    former_.reset();
    last_.reset();
  }
  if (open_.Result() || !open_.Setup().calculation) {
    // A result that stood through a change, as that of a required rating, is no other one.
    if (tried_ || !last_) NoteResult();
    tried_.reset();
    Await(Wait::kNothing);
  } else if (tried_ != open_.Setup()) {
    Begin();
  }
}

void ContinuousCalculation::FollowLeftField() {
  if (wait_ != Wait::kEntry) return;
  tried_.reset();
  Follow();
  emit Changed();
}

void ContinuousCalculation::NoteResult() {
  if (!open_.Result()) return;
  const std::size_t step = open_.Steps().StepNumber();
  if (last_ && step != last_step_) former_ = std::move(last_);
  last_ = {*open_.Setup().calculation, *open_.Result()};
  last_step_ = step;
}

/// Completes the set-up as a run does, then runs it.
void ContinuousCalculation::Begin() {
  elements::Setup completed = open_.Setup();
  calculation::PrepareRun(completed);
  tried_ = open_.Setup();
  if (completed != open_.Setup()) {
    if (IsBeingTyped(open_.Setup(), completed, open_.Steps())) return Await(Wait::kEntry);
    // Opening alone changes nothing of a project.
    if (!open_.IsTouched()) return Await(Wait::kCompletion);
    tried_ = std::move(completed);
    open_.Prepare();
  }
  Start();
}

void ContinuousCalculation::Start() {
  Await(Wait::kRun);
  // A run that goes on is left to end; then the newest set-up has its turn.
  if (outcome_.valid()) return;
  running_ = open_.Setup();
  outcome_ = std::async(std::launch::async, run_, running_);
  if (outcome_.wait_for(kPatience) == std::future_status::ready) {
    Finish();
  } else {
    look_.start();
  }
}

void ContinuousCalculation::Finish() {
  look_.stop();
  RunOutcome outcome;
  try {
    outcome = outcome_.get();
  } catch (const std::exception& failure) {
    outcome.status = RunStatus::kFailed;
    outcome.messages = {{{kUnexpectedRow}, {failure.what()}}};
  }
  if (!on_ || wait_ != Wait::kRun) return;
  if (running_ != open_.Setup()) return Start();
  if (outcome.result) {
    Await(Wait::kNothing);
    open_.TakeResult(running_, std::move(*outcome.result));
    NoteResult();
    tried_.reset();
    return;
  }
  const bool asks = outcome.status == RunStatus::kDeclined && !outcome.messages.empty();
  if (asks) {
    Await(Wait::kAnswer, outcome.messages.front());
  } else if (outcome.refusal) {
    Await(Wait::kCorrection, {outcome.refusal->reason});
  } else {
    Await(Wait::kCorrection, outcome.messages.empty() ? Message() : outcome.messages.back());
  }
  emit Changed();
}

void ContinuousCalculation::Await(Wait wait, Message reason) {
  wait_ = wait;
  reason_ = std::move(reason);
}

}  // namespace velmar::shell
