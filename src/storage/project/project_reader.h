#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

#include "elements/material_record.h"
#include "elements/setup.h"
#include "storage/project/family_part.h"

namespace velmar::storage {

/// What a project file does not hold.
struct ProjectReadContext {
  /// The open set-up: fields that the file's calculation does not have stay as they are here, and so do rows
  /// 6 and 7 of the project information for files of the older layouts.
  elements::Setup current{};
  /// Chooses a calculation with all that its menu entry sets besides. By default only `calculation` is set.
  std::function<void(elements::Setup&, elements::Calculation)> select_calculation{};
  /// Today's materials. A structural material's critical frequency, surface mass and thermal columns are
  /// taken from its row where there is one (else from the file), a fibre's absorption always (else it has
  /// none).
  elements::MaterialLookup materials{};
};

/// A project as read.
struct OpenedProject {
  elements::Setup setup{};     ///< without a calculation when the file names one that is not known
  StoredCalculation stored{};  ///< what the file names; WriteProject() keeps it for an unknown calculation
};

/// No project comes near this size, in bytes.
inline constexpr std::size_t kProjectSizeLimit = std::size_t{16} * 1024 * 1024;

/// Reads the bytes of a project file of any version. All or nothing: a file that ends early, a number that is
/// none, a count that no list can hold, or a line of another kind than the one due is refused. Text behind
/// the last line is ignored, but for a keyed block.
/// @throws ProjectFileFailure
OpenedProject ReadProject(std::string_view bytes, const ProjectReadContext& context);

/// `LeggiProgetto`: reads the project file `path`.
/// @throws ProjectFileFailure also for a file that is missing, may not be read, is none, or is larger than
///         kProjectSizeLimit; it names the file
OpenedProject OpenProject(const std::filesystem::path& path, const ProjectReadContext& context);

}  // namespace velmar::storage
