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

/// What a command line says of the data folder.
struct Opening {
  std::optional<std::filesystem::path> data_folder{};  ///< what --data names; nothing: the configured one
  bool mends = false;  ///< the command looks after the stores: they may be missing or damaged
};

/// Opens what the commands need.
using OpenServices = std::function<Services(const Opening&)>;

/// Parses `arguments` (without the program's name) and carries the command out. Throws nothing: whatever goes
/// wrong is told on `errors`, also that `out` could not be written. An argument that is not UTF-8 is refused,
/// of `report` only the project that has such a name.
/// @return the process's exit code
int RunCommandLine(std::span<const std::string> arguments, const OpenServices& open_services,
                   std::ostream& out, std::ostream& errors);

}  // namespace velmar::cli
