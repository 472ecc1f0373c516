#pragma once

#include <filesystem>
#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `import FILE`
struct ImportCommand {
  std::filesystem::path file{};
  bool yes = false;  ///< the answer to the question whether to convert
  bool json = false;
};

/// Converts a genuine Access file into the program's own format, in its place; the original is kept beside
/// it. Without `yes` only the question is shown and nothing done.
ExitCode Execute(const ImportCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
