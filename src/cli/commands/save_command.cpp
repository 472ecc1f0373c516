#include "cli/commands/save_command.h"

#include <ostream>

#include "application/projects.h"
#include "cli/output/failure_report.h"
#include "storage/project/project_writer.h"

namespace velmar::cli {

ExitCode Execute(const SaveCommand& command, const Services& services, std::ostream& errors) {
  try {
    const storage::OpenedProject project = application::OpenProject(command.from, {}, services.materials);
    storage::SaveProject(command.to, project.setup, project.stored);
    return ExitCode::kDone;
  } catch (const Failure& failure) {
    return TellFailure(failure, services.words, errors);
  }
}

}  // namespace velmar::cli
