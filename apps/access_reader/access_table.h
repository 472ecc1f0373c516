#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <glib.h>
// GLib goes first: mdbtools.h would include it inside extern "C".
#include <mdbtools.h>

#include "access_reader/access_value.h"

namespace velmar::access_reader {

/// The longest memo that is kept whole, in bytes.
inline constexpr std::size_t kTextBytes = std::size_t{1} << 20U;

/// One table of an open Access file, read from its first row to its last.
class AccessTable {
 public:
  /// Reads columns and indexes and goes before the first row.
  /// @throws ReadingFailure when the definition of the table is damaged
  explicit AccessTable(MdbCatalogEntry* entry);

  const std::string& Name() const { return name_; }
  const std::vector<ColumnInfo>& Columns() const { return columns_; }
  const std::vector<IndexInfo>& Indexes() const { return indexes_; }
  /// The number of rows that the file itself states.
  std::uint64_t StatedRows() const { return table_->num_rows; }

  /// Fills `row` with the next row, one value a column. @return false behind the last one
  /// @throws ReadingFailure when a value lies outside its page or does not fit
  bool Next(std::vector<Value>& row);

 private:
  struct Binding {
    MdbColumn* column = nullptr;
    std::unique_ptr<char[]> buffer;
    std::size_t size = 0;
    int length = 0;
  };
  struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
  };

  void ReadIndexes();
  void Bind();
  Value Read(const Binding& binding) const;
  Value ReadFixed(const MdbColumn& column) const;

  std::string name_;
  std::vector<ColumnInfo> columns_;
  std::vector<IndexInfo> indexes_;
  std::vector<Binding> bindings_;  // outlives table_, which points into it
  std::unique_ptr<MdbTableDef, FreeTable> table_;
};

}  // namespace velmar::access_reader
