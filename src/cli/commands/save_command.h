#pragma once

#include <filesystem>
#include <iosfwd>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// `save IN OUT`
struct SaveCommand {
  std::filesystem::path from{};
  std::filesystem::path to{};
};

/// Opens a project and saves it under another name, whole or not at all. Every message goes to `errors`.
ExitCode Execute(const SaveCommand& command, const Services& services, std::ostream& errors);

}  // namespace velmar::cli
