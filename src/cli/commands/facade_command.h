#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `facade IN OUT [--opaque WHERE] [--component N=WHERE]...`, where WHERE is "results:NAME" (a stored
/// airborne result) or "library:KIND/SERIES/NAME" (a measured test).
struct FacadeCommand {
  std::filesystem::path from{};
  std::filesystem::path to{};
  std::string opaque{};
  std::vector<std::string> components{};  ///< "N=WHERE", N from 1 to 9
};

/// Opens a facade project, takes its parts from the stored results and the measured library by name, and
/// saves it under another name, whole or not at all. Every message goes to `errors`.
ExitCode Execute(const FacadeCommand& command, const Services& services, std::ostream& errors);

}  // namespace velmar::cli
