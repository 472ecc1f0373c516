#include "cli/save_command.h"

#include <ostream>

#include "application/projects.h"
#include "cli/outcome_table.h"
#include "foundation/failure.h"
#include "storage/project/project_writer.h"

namespace velmar::cli {

ExitCode Execute(const SaveCommand& command, const Services& services, std::ostream& errors) {
  try {
    const storage::OpenedProject project = application::OpenProject(command.from, {}, services.materials);
    storage::SaveProject(command.to, project.setup, project.stored);
    return ExitCode::kDone;
  } catch (const Failure& failure) {
    WriteMessage(failure.UserMessage(), services.words, errors);
    return ExitCode::kFailed;
  }
}

}  // namespace velmar::cli
