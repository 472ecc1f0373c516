#include "cli/run_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "application/projects.h"
#include "calculation/open_calculation.h"
#include "cli/outcome_json.h"
#include "cli/outcome_table.h"
#include "foundation/failure.h"

namespace velmar::cli {
namespace {

/// "The file names a calculation that is not known:"
constexpr MessageRow kUnknownCalculationRow{1011};

ExitCode CodeOf(calculation::RunStatus status) {
  switch (status) {
    case calculation::RunStatus::kDone:
      return ExitCode::kDone;
    case calculation::RunStatus::kDeclined:
    case calculation::RunStatus::kRefused:
      return ExitCode::kNoResult;
    case calculation::RunStatus::kFailed:
      return ExitCode::kFailed;
  }
  return ExitCode::kFailed;
}

/// What the user is told of a project whose calculation is not known.
calculation::RunOutcome UnknownCalculation(const storage::StoredCalculation& stored) {
  return {.status = calculation::RunStatus::kRefused,
          .messages = {{{kUnknownCalculationRow, " \"" + stored.family + "\", \"" + stored.variant + "\""}}}};
}

ExitCode Report(const RunCommand& command, const CalculationTexts& texts,
                const calculation::RunOutcome& outcome, const calculation::Totals& totals,
                const Services& services, std::ostream& out, std::ostream& errors) {
  for (const Message& message : outcome.messages) WriteMessage(message, services.words, errors);
  if (command.json) {
    out << OutcomeJson(texts, outcome, totals, services.words).dump() << '\n';
  } else if (outcome.result) {
    WriteResult(texts, *outcome.result, totals, services.words, out);
  }
  return CodeOf(outcome.status);
}

}  // namespace

ExitCode Execute(const RunCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  try {
    const storage::OpenedProject project = application::OpenProject(command.project, {}, services.materials);
    const CalculationTexts texts{project.stored.family, project.stored.variant, project.stored.orientation};
    calculation::OpenCalculation open;
    open.Replace(project.setup);
    const calculation::RunOutcome outcome =
        project.setup.calculation ? open.Run([&](const Message&) { return command.go_on_outside_ranges; })
                                  : UnknownCalculation(project.stored);
    return Report(command, texts, outcome, open.CurrentTotals(), services, out, errors);
  } catch (const Failure& failure) {
    const calculation::RunOutcome unread{.status = calculation::RunStatus::kFailed,
                                         .messages = {failure.UserMessage()}};
    return Report(command, {}, unread, {}, services, out, errors);
  }
}

}  // namespace velmar::cli
