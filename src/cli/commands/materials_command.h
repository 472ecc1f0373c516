#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/exit_code.h"
#include "elements/layer_groups.h"

namespace velmar::cli {

enum class MaterialsAction { kList, kShow, kAdd, kEdit, kDelete, kImport, kExport };

/// `materials list|show|add|edit|delete|import|export`
struct MaterialsCommand {
  MaterialsAction action = MaterialsAction::kList;
  /// The table; of `list` and `show` it may be left open: all three.
  std::optional<elements::MaterialFamily> family{};
  std::string name{};                   ///< of show, edit, delete
  std::string keyword{};                ///< of list: what a keyword filter would show
  std::vector<std::string> settings{};  ///< of add, edit: "column=value", columns as the table spells them
  std::filesystem::path file{};         ///< of import, and of export (empty: standard output): CSV in UTF-8
  bool force = false;                   ///< of add, edit, import: improbable values are stored
  bool json = false;
};

/// Carries the command out on the material database. Impossible values are refused, improbable ones without
/// `force`. Surface mass and critical frequency follow an edit where they followed from the values before,
/// and the source of changed numbers becomes the user. Every change is one transaction: an import adds all
/// rows of the file or none. Results to `out`, every message to `errors`.
ExitCode Execute(const MaterialsCommand& command, const Services& services, std::ostream& out,
                 std::ostream& errors);

}  // namespace velmar::cli
