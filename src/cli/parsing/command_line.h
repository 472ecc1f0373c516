#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

/// Opens what the commands need. `data_folder` is what --data names; nothing means the configured one.
using OpenServices = std::function<Services(const std::optional<std::filesystem::path>& data_folder)>;

/// Parses `arguments` (without the program's name) and carries the command out.
/// @return the process's exit code
int RunCommandLine(std::span<const std::string> arguments, const OpenServices& open_services,
                   std::ostream& out, std::ostream& errors);

}  // namespace velmar::cli
