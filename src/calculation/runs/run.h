#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "elements/fields.h"
#include "elements/result_set.h"
#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::calculation {

/// How a run ended.
enum class RunStatus {
  kDone,
  kDeclined,  ///< the user did not want to leave a relation's range
  kRefused,   ///< something is missing or does not fit, and the messages say what
  kFailed,    ///< the arithmetic came to nothing usable
};

/// The field that keeps a calculation from running, and the line of the message that says why.
struct Refusal {
  elements::FieldId field{};
  MessageLine reason{};

  bool operator==(const Refusal&) const = default;
};

/// What a run left behind: a result only when it is done.
struct RunOutcome {
  RunStatus status = RunStatus::kRefused;
  std::optional<elements::ResultSet> result{};
  std::vector<Message> messages{};  ///< every box shown, questions included, in order
  /// What to correct first when it is refused or failed; nothing where no single field is to blame.
  std::optional<Refusal> refusal{};
};

/// Asks the user whether to go on; true for yes. The last line of a question is the one that asks.
using AskToGoOn = std::function<bool(const Message& question)>;

/// What a run changes of the set-up before it reads it: empty `Text9` and `Text8` become "10", a SEA cavity
/// takes at least the depth of its contents, the base of a lining 200 mm where it has none.
void PrepareRun(elements::Setup& setup);

/// Runs the chosen calculation on a prepared set-up: model, rating, relation, adaptation terms. Asks at most
/// one question. Never throws for what a set-up holds: an arithmetic failure ends as kFailed, impossible data
/// of a layer as kRefused before anything is calculated, both without a result.
/// @param loss_factor_before EtaInt of the result that stands, 0 without one; light double walls divide it
RunOutcome RunCalculation(const elements::Setup& setup, double loss_factor_before, const AskToGoOn& ask);

}  // namespace velmar::calculation
