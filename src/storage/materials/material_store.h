#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "foundation/message.h"
#include "storage/database/connection.h"
#include "storage/materials/material_row.h"

namespace velmar::storage {

/// The material database. Every operation opens the file, works and closes it; a change is one transaction.
///
/// A name is unique without regard to case, also of accented letters (FoldCase()); a file that holds two such
/// names all the same is read as it is. Every member throws DatabaseFailure when the file cannot be read or
/// changed. `Material` is StructuralMaterial, FibrousMaterial or ResilientMaterial.
class MaterialStore {
 public:
  explicit MaterialStore(std::filesystem::path file) : file_(std::move(file)) {}

  const std::filesystem::path& File() const { return file_; }

  /// What the lists of a family show, in the order of insertion.
  std::vector<ListedMaterial> List(elements::MaterialFamily family) const;

  /// All rows in the order of insertion.
  template <typename Material>
  std::vector<MaterialRow<Material>> Rows() const;
  /// The first row as stored, or nothing in an empty table.
  template <typename Material>
  std::optional<MaterialRow<Material>> First() const;
  /// The row called `name`: the one so spelt, or else the first that differs in case alone.
  template <typename Material>
  std::optional<MaterialRow<Material>> Find(std::string_view name) const;

  /// Adds all of `rows` or, when one of them has no name or a name that exists, none.
  /// @return the refusal; of several rows it names the one it is about
  template <typename Material>
  std::optional<Message> Add(const std::vector<MaterialRow<Material>>& rows);

  /// Lets `change` work on the row called `name` and writes it back; what it leaves alone stays.
  /// @return the refusal: the row is gone, or its new name is empty or another row's
  template <typename Material>
  std::optional<Message> Change(std::string_view name,
                                const std::function<void(MaterialRow<Material>&)>& change);

  /// Removes the row called `name`.
  /// @return false when there is none
  bool Delete(elements::MaterialFamily family, std::string_view name);

 private:
  std::filesystem::path file_;
};

/// The look-ups that the rules of a set-up are given. Each reads `file` anew; those for one operation share a
/// connection, which goes with the last of them.
/// @param patience_ms how long a lookup waits for another program
elements::MaterialLookup MaterialLookupIn(const std::filesystem::path& file,
                                          int patience_ms = kReadPatienceMs);

}  // namespace velmar::storage
