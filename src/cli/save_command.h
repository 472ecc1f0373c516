#pragma once

#include <filesystem>
#include <iosfwd>

#include "cli/exit_code.h"
#include "cli/services.h"

namespace velmar::cli {

/// `save IN OUT`
struct SaveCommand {
  std::filesystem::path from{};
  std::filesystem::path to{};
};

/// Opens a project and saves it under another name, whole or not at all. Every message goes to `errors`.
ExitCode Execute(const SaveCommand& command, const Services& services, std::ostream& errors);

}  // namespace velmar::cli
