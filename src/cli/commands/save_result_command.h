#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `results save PROJECT NAME [--answer yes|no] [--json]`
struct SaveResultCommand {
  std::filesystem::path project{};
  std::string name{};
  bool go_on_outside_ranges = false;  ///< the answer to every question
  bool json = false;
};

/// Runs the project and stores its result under the name, in the table of its family. A name that exists
/// (case ignored) is refused, and nothing is written. Results to `out`, every message to `errors`.
ExitCode Execute(const SaveResultCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
