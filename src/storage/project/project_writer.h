#pragma once

#include <filesystem>
#include <string>

#include "elements/setup.h"
#include "storage/project/family_part.h"

namespace velmar::storage {

/// The project file of `setup`. The same set-up always gives the same bytes, and ReadProject() always takes
/// them; reading and writing again gives the same bytes once more.
///
/// Line 1 is "VELMAR " and the program's version; lines 2 to 17 are the project information, 18 to 20 the
/// calculation; then the family part, whose lines stand in the source of each family; then, when `setup`
/// holds further values, their keyed block.
///
/// @param unknown what stands in lines 18 to 20 when `setup` has no calculation: the texts of an opened file
///        whose calculation this program does not know. Its family part is written by the family's text; an
///        unknown family has none.
std::string WriteProject(const elements::Setup& setup, const StoredCalculation& unknown = {});

/// `ScriviProgetto`: writes the project file `path`, complete with its extension; an existing file is
/// replaced as a whole.
/// @throws StoreFailure when that is not possible; what stood there is then untouched
void SaveProject(const std::filesystem::path& path, const elements::Setup& setup,
                 const StoredCalculation& unknown = {});

}  // namespace velmar::storage
