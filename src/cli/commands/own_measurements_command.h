#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"

namespace velmar::cli {

enum class OwnMeasurementsAction { kAdd, kEdit, kDelete, kImport, kExport };

/// `library add KIND SETTINGS...`, `library edit KIND NAME SETTINGS...`, `library delete KIND NAME`,
/// `library import KIND FILE`, `library export KIND [FILE]`: the user's own measurements of a kind.
struct OwnMeasurementsCommand {
  OwnMeasurementsAction action = OwnMeasurementsAction::kAdd;
  std::string kind{};  ///< "Rw", "Infissi", "R'w", ...
  std::string name{};  ///< of edit and delete: exactly as stored; of import: of an analyser's text
  std::vector<std::string> settings{};  ///< of add, edit: "column=value", columns as the table spells them
  std::filesystem::path bands{};        ///< of add, edit: a file with frequencies and levels; empty: none
  std::filesystem::path file{};         ///< of import, and of export (empty: standard output)
};

/// Carries the command out on the series of own measurements; the shipped series are never written to. What
/// cannot be taken is told line by line, and then nothing is taken. A stated rating that the bands do not
/// give is told and stored as stated. Results to `out`, every message to `errors`.
ExitCode Execute(const OwnMeasurementsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
