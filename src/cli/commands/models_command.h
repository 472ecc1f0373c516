#pragma once

#include <filesystem>
#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `models PROJECT [--json] [--answer yes|no]`: every model that applies to a project.
struct ModelsCommand {
  std::filesystem::path project{};
  bool json = false;
  bool go_on_outside_ranges = false;
};

/// Runs the project's calculation and every other model that applies to it, and writes what each says with
/// its measured error to `out`. What the calculation itself has to say goes to `errors`; the other models
/// are shown without it too.
ExitCode Execute(const ModelsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
