#include "cli/commands/project_run.h"

#include <utility>

#include "application/project_run.h"

namespace velmar::cli {

ProjectRun RunProject(const std::filesystem::path& path, const elements::MaterialLookup& materials,
                      bool go_on_outside_ranges) {
  application::ProjectRun project = application::RunProject(path, materials, go_on_outside_ranges);
  ProjectRun run{.texts = {project.stored.family, project.stored.variant, project.stored.orientation},
                 .setup = std::move(project.setup),
                 .outcome = std::move(project.outcome),
                 .totals = project.totals};
  if (run.outcome.result && run.setup.calculation) {
    run.numbers = elements::SingleNumbersOf(*run.outcome.result, *run.setup.calculation);
  }
  return run;
}

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

}  // namespace velmar::cli
