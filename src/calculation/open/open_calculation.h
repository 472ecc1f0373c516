#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "calculation/open/history.h"
#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "elements/result_set.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// The one open calculation: the set-up, and a result that exists only while it belongs to the set-up.
class OpenCalculation {
 public:
  const elements::Setup& Setup() const { return setup_; }
  const std::optional<elements::ResultSet>& Result() const { return result_; }
  const Totals& CurrentTotals() const { return totals_; }

  /// `NothingToSave`: no change since the project was begun, opened or saved.
  bool IsSaved() const { return is_saved_; }
  /// `InputTouched`: there was an input since the last run.
  bool IsTouched() const { return is_touched_; }

  /// The way to change the set-up. Drops the result (`Nuovo_modifica`(1)), then tells the listener. A change
  /// that throws leaves everything as it was and tells nobody.
  /// @param named what is done, where that is more than the difference tells
  template <typename Change>
  void Edit(Change&& change, const std::optional<Step>& named = std::nullopt) {
    Take(Changed(std::forward<Change>(change)), /*keep_result=*/false, named);
  }

  /// The exception: what no result depends on, the project's information, the description of an element and
  /// what the project holds beyond its calculation.
  template <typename Change>
  void EditKeepingResult(Change&& change, const std::optional<Step>& named = std::nullopt) {
    Take(Changed(std::forward<Change>(change)), /*keep_result=*/true, named);
  }

  /// The steps back and forth through what the set-up has been since the project was begun or opened.
  const History& Steps() const { return history_; }
  /// Takes the last step back, or does the one taken back again; nothing where there is none. The result
  /// goes, unless the step was about what no result depends on.
  void Undo();
  void Redo();
  /// The field that was edited is left: the next change is a step of its own.
  void EndStep() { history_.EndStep(); }

  /// A new or opened project takes the place of the old one (`Nuovo_modifica`(0)).
  void Replace(elements::Setup setup);

  /// The project was written to its file.
  void MarkSaved();

  /// `Nuovo_modifica`(1) by itself: the result goes, the set-up stays.
  void DropResult();

  /// Prepares the set-up and runs it. Without a result it leaves none behind.
  RunOutcome Run(const AskToGoOn& ask);

  /// What a run would change of the set-up before it reads it is changed now; the result goes with it.
  void Prepare();

  /// `result` of a run of `setup` that was made elsewhere; taken where the set-up is still that one and waits
  /// for a result. @return whether it was taken
  bool TakeResult(const elements::Setup& setup, elements::ResultSet result);

  /// `listener` is called after every change of set-up, result or saved state; nothing calls it before.
  void OnChange(std::function<void()> listener) { listener_ = std::move(listener); }

 private:
  template <typename Change>
  elements::Setup Changed(Change&& change) const {
    elements::Setup setup = setup_;
    std::forward<Change>(change)(setup);
    return setup;
  }
  void Put(elements::Setup setup);
  void Take(elements::Setup changed, bool keep_result, const std::optional<Step>& named);
  void GoTo(elements::Setup setup);
  void AfterChange(bool keep_result);
  void Tell();

  elements::Setup setup_;
  History history_;
  std::optional<elements::ResultSet> result_;
  Totals totals_;
  bool is_saved_ = true;
  bool is_touched_ = false;
  std::function<void()> listener_;
};

}  // namespace velmar::calculation
