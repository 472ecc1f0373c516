#include "materials/save_entry.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <variant>

#include "foundation/message_rows.h"
#include "materials/derived_values.h"

namespace velmar::materials {

template <typename Material>
bool ValuesDiffer(storage::MaterialRow<Material> row, const storage::MaterialRow<Material>& stored) {
  row.record.values.name = stored.record.values.name;
  row.record.values.description = stored.record.values.description;
  row.keyword = stored.keyword;
  row.picture = stored.picture;
  row.source = stored.source;
  return storage::CellsFromRow(row) != storage::CellsFromRow(stored);
}

template bool ValuesDiffer(storage::StructuralRow, const storage::StructuralRow&);
template bool ValuesDiffer(storage::FibrousRow, const storage::FibrousRow&);
template bool ValuesDiffer(storage::ResilientRow, const storage::ResilientRow&);

EntryRefusal NotSaved(const storage::DatabaseFailure& failure) {
  Message message{{kMaterialNotSavedRow}};
  std::ranges::copy(failure.UserMessage(), std::back_inserter(message));
  return {.message = std::move(message)};
}

namespace {

using elements::StructuralMaterial;

/// Takes over from the stored row what no editor shows.
template <typename Material>
void KeepColumns(storage::MaterialRow<Material>& row, const storage::MaterialRow<Material>& stored) {
  row.picture = stored.picture;
}

template <>
void KeepColumns(storage::StructuralRow& row, const storage::StructuralRow& stored) {
  using M = StructuralMaterial;
  row.record.nulls.clear();
  for (double M::*field :
       {&M::thermal_conductivity_w_mk, &M::thermal_conductance_w_m2k, &M::vapour_permeability_dry,
        &M::vapour_permeability_wet, &M::thermal_resistance_m2k_w}) {
    row.record.values.*field = stored.record.values.*field;
    if (!stored.record.Holds(field)) row.record.nulls.push_back(field);
  }
}

std::string ComputationOf(const FibrousEntry& entry) { return entry.computation; }
template <typename Entry>
std::string ComputationOf(const Entry& /*entry*/) {
  return {};
}

/// What no editor shows stays as it is stored; the source tells where the values come from now: what was
/// typed, or else what was stored, or the user when the numbers are other ones.
template <typename Material, typename Entry>
void KeepHidden(storage::MaterialRow<Material>& row, const storage::MaterialRow<Material>& stored,
                const Entry& entry) {
  KeepColumns(row, stored);
  const bool typed = !entry.source.empty() && entry.source != stored.source;
  if (typed) return;
  const std::string computation = ComputationOf(entry);
  if (!ValuesDiffer(row, stored)) {
    row.source = stored.source;
  } else if (computation.empty()) {
    row.source = stored.source.empty() ? std::string() : kUserValueSource;
  } else {
    row.source = WithComputation(stored.source, computation);
  }
}

template <typename Material, typename Entry>
std::optional<EntryRefusal> Save(storage::MaterialStore& store, const Entry& entry,
                                 const std::string& old_name, const KeywordTexts& texts) {
  auto checked = RowOf(entry, texts);
  if (auto* refusal = std::get_if<EntryRefusal>(&checked)) return std::move(*refusal);
  auto& row = std::get<storage::MaterialRow<Material>>(checked);
  try {
    std::optional<Message> refusal;
    if (old_name.empty()) {
      refusal = store.Add<Material>({row});
    } else {
      refusal = store.Change<Material>(old_name, [&](storage::MaterialRow<Material>& stored) {
        KeepHidden(row, stored, entry);
        stored = row;
      });
    }
    if (!refusal) return std::nullopt;
    return EntryRefusal{*std::move(refusal), kNameField};
  } catch (const storage::DatabaseFailure& failure) {
    return NotSaved(failure);
  }
}

template <typename Material, typename Entry>
std::optional<EntryRefusal> Copy(storage::MaterialStore& store, const Entry& entry,
                                 const storage::MaterialRow<Material>& original, const KeywordTexts& texts) {
  auto checked = RowOf(entry, texts);
  if (auto* refusal = std::get_if<EntryRefusal>(&checked)) return std::move(*refusal);
  auto& row = std::get<storage::MaterialRow<Material>>(checked);
  KeepHidden(row, original, entry);
  try {
    if (auto refusal = store.Add<Material>({row})) return EntryRefusal{*std::move(refusal), kNameField};
    return std::nullopt;
  } catch (const storage::DatabaseFailure& failure) {
    return NotSaved(failure);
  }
}

}  // namespace

std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const StructuralEntry& entry,
                                     const storage::StructuralRow& original, const KeywordTexts& texts) {
  return Copy(store, entry, original, texts);
}

std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const FibrousEntry& entry,
                                     const storage::FibrousRow& original, const KeywordTexts& texts) {
  return Copy(store, entry, original, texts);
}

std::optional<EntryRefusal> SaveCopy(storage::MaterialStore& store, const ResilientEntry& entry,
                                     const storage::ResilientRow& original, const KeywordTexts& texts) {
  return Copy(store, entry, original, texts);
}

std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const StructuralEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts) {
  return Save<elements::StructuralMaterial>(store, entry, old_name, texts);
}

std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const FibrousEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts) {
  return Save<elements::FibrousMaterial>(store, entry, old_name, texts);
}

std::optional<EntryRefusal> SaveEntry(storage::MaterialStore& store, const ResilientEntry& entry,
                                      const std::string& old_name, const KeywordTexts& texts) {
  return Save<elements::ResilientMaterial>(store, entry, old_name, texts);
}

}  // namespace velmar::materials
