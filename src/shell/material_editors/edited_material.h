#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "elements/layer_groups.h"
#include "foundation/message.h"
#include "materials/material_entry.h"
#include "shell/fields/material_change.h"
#include "storage/materials/material_store.h"

namespace velmar::material_editors {

/// What became of an attempt to store a material.
struct SaveOutcome {
  bool done = false;                                 ///< the editor may close
  std::optional<shell::MaterialChange> change{};     ///< nothing when there was nothing to write
  std::optional<materials::EntryRefusal> refusal{};  ///< to be told
};

/// Asks the user the lines of one box.
using AskUser = std::function<bool(const Message& question)>;

/// The material that an editor holds: a new one, or a row as it was when the editor opened.
/// `Material` is StructuralMaterial, FibrousMaterial or ResilientMaterial.
template <typename Material>
class EditedMaterial {
 public:
  using Row = storage::MaterialRow<Material>;
  using Entry = decltype(materials::EntryOf(std::declval<const Row&>()));

  /// @param opened the row to be changed, nothing for a new material
  EditedMaterial(storage::MaterialStore& store, materials::KeywordTexts texts, std::optional<Row> opened)
      : store_(&store), texts_(std::move(texts)), opened_(std::move(opened)) {}

  const std::optional<Row>& Opened() const { return opened_; }

  /// Checks and stores `entry`; `ask` decides first about values that are improbable. A row that nobody
  /// touched is not written, so that its numbers stay to the last digit. `ask` decides about a row that
  /// another program has deleted, renamed or changed meanwhile; "no" stores nothing.
  /// @param touched whether the user changed anything since the editor opened
  SaveOutcome Save(const Entry& entry, bool touched, const AskUser& ask);

  /// Checks `entry` and stores it as a new row beside the opened one, which stays as it is. Under the name of
  /// the opened one it takes that name with `mark` behind it.
  SaveOutcome SaveCopy(Entry entry, const std::string& mark, const AskUser& ask);

 private:
  /// Whether improbable values of `row` are to be stored.
  static bool Accepted(const Row& row, const AskUser& ask);

  storage::MaterialStore* store_;
  materials::KeywordTexts texts_;
  std::optional<Row> opened_;
};

/// The keywords that an editor suggests: those of the family's filter, and the not-specified one.
/// @throws DatabaseFailure when the file cannot be read
std::vector<std::string> SuggestedKeywords(const storage::MaterialStore& store,
                                           elements::MaterialFamily family,
                                           const materials::KeywordTexts& texts);

}  // namespace velmar::material_editors
