#include "application/project_run.h"

#include "application/projects.h"
#include "calculation/open/open_calculation.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::application {
namespace {

/// What the user is told of a project whose calculation is not known.
calculation::RunOutcome UnknownCalculation(const storage::StoredCalculation& stored) {
  return {.status = calculation::RunStatus::kRefused,
          .messages = {{{kUnknownCalculationRow, " \"" + stored.family + "\", \"" + stored.variant + "\""}}}};
}

}  // namespace

ProjectRun RunProject(const std::filesystem::path& path, const elements::MaterialLookup& materials,
                      bool go_on_outside_ranges) {
  ProjectRun run;
  try {
    const storage::OpenedProject project = OpenProject(path, {}, materials);
    run.stored = project.stored;
    calculation::OpenCalculation open;
    open.Replace(project.setup);
    run.outcome = project.setup.calculation ? open.Run([&](const Message&) { return go_on_outside_ranges; })
                                            : UnknownCalculation(project.stored);
    run.setup = open.Setup();
    run.totals = open.CurrentTotals();
  } catch (const Failure& failure) {
    run = {};
    run.outcome.status = calculation::RunStatus::kFailed;
    run.outcome.messages = {failure.UserMessage()};
  }
  return run;
}

}  // namespace velmar::application
