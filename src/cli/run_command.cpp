#include "cli/run_command.h"

#include <ostream>
#include <utility>

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

/// What a run comes to, as it is reported.
struct Report {
  CalculationTexts texts{};
  calculation::RunOutcome outcome{};
  calculation::Totals totals{};
};

Report RunProject(const RunCommand& command, const Services& services) {
  try {
    const storage::OpenedProject project = application::OpenProject(command.project, {}, services.materials);
    calculation::OpenCalculation open;
    open.Replace(project.setup);
    calculation::RunOutcome outcome =
        project.setup.calculation ? open.Run([&](const Message&) { return command.go_on_outside_ranges; })
                                  : UnknownCalculation(project.stored);
    return {.texts = {project.stored.family, project.stored.variant, project.stored.orientation},
            .outcome = std::move(outcome),
            .totals = open.CurrentTotals()};
  } catch (const Failure& failure) {
    return {.outcome = {.status = calculation::RunStatus::kFailed, .messages = {failure.UserMessage()}}};
  }
}

}  // namespace

ExitCode Execute(const RunCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  const Report report = RunProject(command, services);
  for (const Message& message : report.outcome.messages) WriteMessage(message, services.words, errors);
  if (command.json) {
    out << OutcomeJson(report.texts, report.outcome, report.totals, services.words).dump() << '\n';
  } else if (report.outcome.result) {
    WriteResult(report.texts, *report.outcome.result, report.totals, services.words, out);
  }
  return CodeOf(report.outcome.status);
}

}  // namespace velmar::cli
