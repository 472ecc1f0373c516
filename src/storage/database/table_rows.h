#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace SQLite {
class Database;
}

namespace velmar::storage {

/// A row of a table: a cell a column, in the order of the schema it was read by.
struct StoredRow {
  std::int64_t id = 0;  ///< grows in the order of insertion
  std::vector<Cell> cells;
};

/// `schema` with only those of its columns, in the order given.
TableSchema Only(const TableSchema& schema, const std::vector<std::string_view>& columns);

/// A table as it stands in a file, seen through a schema. Columns are found without regard to case; a column
/// of the schema that the table lacks reads as null and is passed over in writing; columns that the schema
/// does not know are left alone. A number written as text is read as a number, and a value that is none as
/// null.
///
/// Every member throws SQLite::Exception, and DatabaseFailure where the file contradicts itself (an index
/// that names a row that the table lacks); inside ReadDatabase() and ChangeDatabase() it becomes a
/// DatabaseFailure.
class TableRows {
 public:
  /// @throws DatabaseFailure when the file has no such table, the table no key column, or its columns hide
  ///         every name of the row number
  TableRows(SQLite::Database& database, const TableSchema& schema);

  /// Whether the table has a column for `column` of the schema.
  bool Has(std::string_view column) const;

  /// All rows in the order of insertion.
  std::vector<StoredRow> All() const { return All(row_id_); }
  /// All rows in the order of a column.
  /// @param column quoted, as the file spells it
  std::vector<StoredRow> All(const std::string& column) const;
  /// The first row, or nothing.
  std::optional<StoredRow> First() const;
  /// The row whose key is `name`: the one so spelt, or else the first that differs in case alone.
  std::optional<StoredRow> Find(std::string_view name) const;
  /// The id of the first row whose key is exactly `name`, case and all.
  std::optional<std::int64_t> FindExactly(std::string_view name) const;

  void Insert(const std::vector<Cell>& cells);
  void Update(const StoredRow& row);
  void Delete(std::int64_t id);

 private:
  std::vector<StoredRow> Select(const std::string& condition, std::string_view name) const;
  /// The row of that id, which an index or another query named.
  /// @throws DatabaseFailure when the table lacks it: the file contradicts itself
  StoredRow At(std::int64_t id) const;

  SQLite::Database* database_;
  TableSchema schema_;
  std::string table_;                ///< as the file spells it
  std::vector<std::string> stored_;  ///< the file's spelling of each column; empty where it has none
  std::string key_;                  ///< quoted
  std::string row_id_;               ///< the name of the row number that no column of the table hides
  std::string selection_;            ///< SELECT up to the condition
};

}  // namespace velmar::storage
