#include "cli/commands/run_command.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "cli/commands/project_run.h"
#include "cli/output/outcome_json.h"
#include "cli/output/outcome_table.h"
#include "presentation/texts/result_notes.h"
#include "validation/second_opinion.h"

namespace velmar::cli {

ExitCode Execute(const RunCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors) {
  const ProjectRun run = RunProject(command.project, services.materials, command.go_on_outside_ranges);
  for (const Message& message : run.outcome.messages) WriteMessage(message, services.words, errors);
  validation::IntervalOutcome interval;
  if (run.outcome.result) {
    interval = validation::IntervalOfResult(run.setup, *run.outcome.result, services.accuracy());
  }
  if (command.json) {
    nlohmann::json json = OutcomeJson(run.texts, run.outcome, run.numbers, run.totals, services.words);
    if (interval.interval) json["interval"] = IntervalJson(*interval.interval);
    WriteJson(json, out);
  } else if (run.outcome.result) {
    WriteResult(run.texts, *run.outcome.result, run.numbers, run.totals, services.words, out);
    for (const std::string& note : presentation::ResultNotes(
             *run.setup.calculation, *run.outcome.result,
             validation::ConfidenceLines(run.setup, *run.outcome.result, interval), services.words)) {
      out << note << '\n';
    }
  }
  return CodeOf(run.outcome.status);
}

}  // namespace velmar::cli
