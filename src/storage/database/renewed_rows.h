#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "storage/database/table_rows.h"
#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// A row that a newer version ships otherwise than it stands in a user's database.
struct RowChange {
  std::size_t table = 0;              ///< place of its table
  std::optional<StoredRow> stands{};  ///< as it stands, to be changed; nothing: to be added
  std::vector<Cell> cells{};          ///< as it is shipped
};
using RowChanges = std::vector<RowChange>;

/// What brings the rows of `mine` up to those of `now`: rows that `before` did not hold are added; rows that
/// stand as `before` holds them, which nobody changed, become those of `now`. Rows that differ from `before`,
/// and those that it holds and `mine` lacks, were changed or deleted by the user and stay so. Rows are told
/// apart by the key of their table (case ignored), or by their place where it has none.
/// @param before what was shipped when `mine` was made; empty when that is not known
/// @throws DatabaseFailure
RowChanges ChangesOfRows(const std::filesystem::path& mine, const std::filesystem::path& before,
                         const std::filesystem::path& now, const std::vector<TableSchema>& tables);

/// Carries `changes` out on `file` in one transaction. A row that does not stand as it did is left alone.
/// @return how many rows were added
/// @throws DatabaseFailure
int ApplyRowChanges(const std::filesystem::path& file, const std::vector<TableSchema>& tables,
                    const RowChanges& changes);

}  // namespace velmar::storage
