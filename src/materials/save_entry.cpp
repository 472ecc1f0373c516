#include "materials/save_entry.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <variant>

#include "foundation/message_rows.h"
#include "storage/database/database_failure.h"

namespace velmar::materials {
namespace {

using elements::StructuralMaterial;

/// Takes over from the stored row what no editor shows.
template <typename Material>
void KeepHidden(storage::MaterialRow<Material>& row, const storage::MaterialRow<Material>& stored) {
  row.source = stored.source;
}

template <>
void KeepHidden(storage::StructuralRow& row, const storage::StructuralRow& stored) {
  using M = StructuralMaterial;
  row.source = stored.source;
  row.record.nulls.clear();
  for (double M::*field :
       {&M::thermal_conductivity_w_mk, &M::thermal_conductance_w_m2k, &M::vapour_permeability_dry,
        &M::vapour_permeability_wet, &M::thermal_resistance_m2k_w}) {
    row.record.values.*field = stored.record.values.*field;
    if (!stored.record.Holds(field)) row.record.nulls.push_back(field);
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
      refusal = store.Change<Material>(old_name, [&row](storage::MaterialRow<Material>& stored) {
        KeepHidden(row, stored);
        stored = row;
      });
    }
    if (!refusal) return std::nullopt;
    return EntryRefusal{*std::move(refusal), "Text1"};
  } catch (const storage::DatabaseFailure& failure) {
    Message message{{kMaterialNotSavedRow}};
    std::ranges::copy(failure.UserMessage(), std::back_inserter(message));
    return EntryRefusal{std::move(message), ""};
  }
}

}  // namespace

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
