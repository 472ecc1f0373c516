#pragma once

#include <optional>
#include <string>

#include "foundation/catalogue_rows.h"
#include "materials/material_entry.h"
#include "storage/database/database_failure.h"
#include "storage/materials/material_store.h"

namespace velmar::materials {

/// Whether a number of `row` is another than in `stored`; words, keyword, picture and source do not count.
/// `Material` is StructuralMaterial, FibrousMaterial or ResilientMaterial.
template <typename Material>
bool ValuesDiffer(storage::MaterialRow<Material> row, const storage::MaterialRow<Material>& stored);

/// Why nothing is stored when the database fails: its message behind kMaterialNotSavedRow.
EntryRefusal NotSaved(const storage::DatabaseFailure& failure);

/// Stores what an editor holds: a new row when `old_name` is empty, else the row of that name is changed. The
/// columns that the editors do not show stay as they are, and are empty in a new row. A source that was typed
/// is stored as typed. Else a row whose numbers change and that had a source has kUserValueSource from then
/// on; one whose missing absorption was computed keeps its source and gains that.
///
/// Nothing is changed when it is refused: by the checks of RowOf(), by a name that exists (case ignored), or
/// by a failure of the database, as NotSaved() tells it.
/// @return the refusal, or nothing when the row is stored
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const StructuralEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const FibrousEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const ResilientEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts);

/// Stores what an editor holds as a new row beside `original`, whose hidden columns and picture it takes over
/// and whose source counts as in SaveEntry(). `original` stays as it is.
/// @return the refusal, or nothing when the row is stored
std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const StructuralEntry& entry,
                                     const storage::StructuralRow& original, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const FibrousEntry& entry,
                                     const storage::FibrousRow& original, const KeywordTexts& texts);
std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const ResilientEntry& entry,
                                     const storage::ResilientRow& original, const KeywordTexts& texts);

}  // namespace velmar::materials
