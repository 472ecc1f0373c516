#pragma once

#include <optional>
#include <string>

#include "elements/layer_groups.h"
#include "storage/materials/material_store.h"

namespace velmar::materials {

/// What a copy is listed under.
struct CopiedMaterial {
  std::string name{};
  std::string keyword{};
};

/// The material `name` of `family` once more, as a row of the user's own: all values, keyword and picture,
/// but no source, under the first free name of "NAME (2)", "NAME (3)", ...
/// @return nothing when there is no such material; nothing has changed then
/// @throws DatabaseFailure when the file cannot be read or changed
std::optional<CopiedMaterial> CopyMaterial(storage::MaterialStore& store, elements::MaterialFamily family,
                                           const std::string& name);

}  // namespace velmar::materials
