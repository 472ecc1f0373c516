#pragma once

#include <filesystem>
#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `run PROJECT [--json] [--answer yes|no]`
struct RunCommand {
  std::filesystem::path project{};
  bool json = false;
  bool go_on_outside_ranges = false;  ///< the answer to every question
};

/// Opens the project, runs it and writes the result to `out`: a readable table, or one JSON object whatever
/// the outcome. Every message goes to `errors`.
ExitCode Execute(const RunCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
