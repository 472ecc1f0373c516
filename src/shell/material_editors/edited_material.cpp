#include "shell/material_editors/edited_material.h"

#include <algorithm>
#include <type_traits>
#include <variant>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "materials/judged_values.h"
#include "materials/save_entry.h"
#include "shell/windows/long_work.h"
#include "storage/database/database_failure.h"

namespace velmar::material_editors {
namespace {

using materials::EntryRefusal;

template <typename Material>
constexpr elements::MaterialFamily FamilyOf() {
  if constexpr (std::is_same_v<Material, elements::StructuralMaterial>)
    return elements::MaterialFamily::kStructural;
  if constexpr (std::is_same_v<Material, elements::FibrousMaterial>)
    return elements::MaterialFamily::kFibrous;
  return elements::MaterialFamily::kResilient;
}

SaveOutcome Refused(EntryRefusal refusal) { return {.refusal = std::move(refusal)}; }

Message GoneQuestion(const std::string& name) {
  return {{kEditedMaterialGoneRow, " " + name}, {kSaveAsNewRow}};
}

}  // namespace

template <typename Material>
SaveOutcome EditedMaterial<Material>::Save(const Entry& entry, bool touched, const AskUser& ask) {
  auto checked = materials::RowOf(entry, texts_);
  if (auto* refusal = std::get_if<EntryRefusal>(&checked)) return Refused(std::move(*refusal));
  const Row& row = std::get<Row>(checked);

  const bool looked_at = touched || !opened_;
  if (looked_at && !Accepted(row, ask)) return {};

  const std::string opened_name = opened_ ? opened_->record.values.name : std::string();
  std::string stored_name = opened_name;
  if (opened_) {
    std::optional<Row> stored;
    try {
      stored = store_->Find<Material>(opened_name);
    } catch (const storage::DatabaseFailure& failure) {
      return Refused(materials::NotSaved(failure));
    }
    if (!stored) {
      if (!ask(GoneQuestion(opened_name))) return {};
      stored_name.clear();
    } else if (storage::CellsFromRow(*stored) != storage::CellsFromRow(*opened_)) {
      if (!ask({{kReplaceMaterialRow}})) return {};
      stored_name = stored->record.values.name;
    } else if (!touched) {
      return {.done = true};
    }
  }
  std::optional<EntryRefusal> refusal;
  shell::RunBeside([&] { refusal = materials::SaveEntry(*store_, entry, stored_name, texts_); });
  if (refusal) return Refused(*std::move(refusal));
  return {.done = true,
          .change =
              shell::MaterialChange{FamilyOf<Material>(), opened_name, row.record.values.name, row.keyword}};
}

template <typename Material>
bool EditedMaterial<Material>::Accepted(const Row& row, const AskUser& ask) {
  auto question = materials::ImprobableValues(elements::FindingsOf(row.record));
  if (!question) return true;
  question->push_back({kStoreAllTheSameRow});
  return ask(*question);
}

template <typename Material>
SaveOutcome EditedMaterial<Material>::SaveCopy(Entry entry, const std::string& mark, const AskUser& ask) {
  if (!opened_) return Save(entry, true, ask);
  if (SameName(entry.name, opened_->record.values.name)) entry.name += " " + mark;
  auto checked = materials::RowOf(entry, texts_);
  if (auto* refusal = std::get_if<EntryRefusal>(&checked)) return Refused(std::move(*refusal));
  const Row& row = std::get<Row>(checked);
  if (!Accepted(row, ask)) return {};
  if (auto refusal = materials::SaveCopy(*store_, entry, *opened_, texts_)) return Refused(*refusal);
  return {.done = true,
          .change = shell::MaterialChange{FamilyOf<Material>(), "", row.record.values.name, row.keyword}};
}

template class EditedMaterial<elements::StructuralMaterial>;
template class EditedMaterial<elements::FibrousMaterial>;
template class EditedMaterial<elements::ResilientMaterial>;

std::vector<std::string> SuggestedKeywords(const storage::MaterialStore& store,
                                           elements::MaterialFamily family,
                                           const materials::KeywordTexts& texts) {
  std::vector<std::string> keywords = materials::KeywordFilter(family, store.List(family), texts);
  keywords.erase(keywords.begin());  // "all" is no keyword
  if (std::ranges::find(keywords, texts.not_specified) == keywords.end())
    keywords.push_back(texts.not_specified);
  return keywords;
}

}  // namespace velmar::material_editors
