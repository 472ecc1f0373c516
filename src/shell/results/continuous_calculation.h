#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <future>
#include <optional>

#include "calculation/open/open_calculation.h"

namespace velmar::shell {

/// A result that stood before the last change, and the calculation that gave it.
struct FormerResult {
  elements::Calculation calculation{};
  elements::ResultSet result{};
};

/// Gives the open calculation a result after each change, while it is switched on. It asks nothing and opens
/// no box: where a run would ask or refuse, it says what, and leaves the answer to the run command. A run
/// that takes long goes on beside the window; when it ends, only a result of the set-up as it is then is
/// taken.
class ContinuousCalculation : public QObject {
  Q_OBJECT
 public:
  /// What keeps the set-up from having a result.
  enum class Wait {
    kNothing,
    kRun,         ///< a run goes on beside the window
    kEntry,       ///< the field that is being typed in, which a run would fill
    kCompletion,  ///< the run command, which fills what an opened project lacks
    kAnswer,      ///< the run command, which asks
    kCorrection,  ///< a correction of the inputs
  };

  /// Runs a prepared set-up without asking; called beside the window, so it may share nothing with it.
  using Runner = std::function<calculation::RunOutcome(const elements::Setup& setup)>;

  /// How long a change waits for its run before the window goes on.
  static constexpr std::chrono::milliseconds kPatience{30};

  /// @param open outlives this object
  explicit ContinuousCalculation(calculation::OpenCalculation& open, QObject* parent = nullptr);
  ContinuousCalculation(calculation::OpenCalculation& open, Runner run, QObject* parent = nullptr);

  bool IsOn() const { return on_; }
  void Switch(bool on);

  /// Gives the open set-up its result where it has none and nothing keeps it from one.
  void Follow();
  /// A field is left: what waited for its entry goes on.
  void FollowLeftField();

  Wait WaitsFor() const { return wait_; }
  /// The question or the refusal that it waits for; empty for the other reasons.
  const Message& Reason() const { return reason_; }
  /// What a difference is told against: the result before the step that made the present one or, while there
  /// is none, the last there was. Nothing while it is switched off, and when a project was begun or opened.
  const std::optional<FormerResult>& Former() const { return open_.Result() ? former_ : last_; }

 signals:
  /// What it waits for is something else now, while set-up and result are as they were.
  void Changed();

 private:
  void NoteResult();
  void Begin();
  void Start();
  void Finish();
  void Await(Wait wait, Message reason = {});

  calculation::OpenCalculation& open_;
  Runner run_;
  bool on_ = false;
  Wait wait_ = Wait::kNothing;
  Message reason_{};
  std::optional<FormerResult> former_{};
  std::optional<FormerResult> last_{};
  std::size_t last_step_ = 0;               ///< the step that `last_` belongs to
  std::optional<elements::Setup> tried_{};  ///< the set-up that `wait_` is about
  elements::Setup running_{};
  std::future<calculation::RunOutcome> outcome_{};
  QTimer look_{};  ///< for the end of a long run
};

}  // namespace velmar::shell
