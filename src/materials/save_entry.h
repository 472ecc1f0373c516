#pragma once

#include <optional>
#include <string>

#include "foundation/catalogue_rows.h"
#include "materials/material_entry.h"
#include "storage/materials/material_store.h"

namespace velmar::materials {

/// Stores what an editor holds: a new row when `old_name` is empty, else the row of that name is changed. The
/// columns that the editors do not show stay as they are, and are empty in a new row.
///
/// Nothing is changed when it is refused: by the checks of RowOf(), by a name that exists (case ignored), or
/// by a failure of the database, which is told behind kMaterialNotSavedRow.
/// @return the refusal, or nothing when the row is stored
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const StructuralEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const FibrousEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const ResilientEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);

}  // namespace velmar::materials
