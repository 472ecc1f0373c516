#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace velmar::data_builder {

/// A SQLite file made anew: the same tables give the same bytes. It stands under its name only after
/// Commit().
class DatabaseFile {
 public:
  /// @throws SQLite::Exception, here and below, when the file cannot be written
  explicit DatabaseFile(const std::filesystem::path& path);

  /// A table of `schema` with its index and its rows.
  void Add(const storage::TableSchema& schema, const std::vector<std::vector<storage::Cell>>& rows);
  /// @throws std::filesystem::filesystem_error
  void Commit();

 private:
  std::filesystem::path path_;
  std::filesystem::path unfinished_;
  SQLite::Database database_;
  SQLite::Transaction transaction_;
};

}  // namespace velmar::data_builder
