#pragma once

#include <set>
#include <string>
#include <vector>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include "access_reader/access_table.h"

namespace velmar::access_reader {

/// The SQLite file that receives the tables. Nothing is in it before Commit().
class SqliteCopy {
 public:
  /// @throws SQLite::Exception, here and below, when the file cannot be written
  explicit SqliteCopy(const std::string& path);

  /// Copies `table` with its rows and indexes.
  /// @throws ReadingFailure when the rows are not as many as the table states, or more than a million
  void Add(AccessTable& table);
  void Commit();

 private:
  void CopyRows(AccessTable& table);
  void CreateIndex(const std::string& table, const IndexInfo& index);

  SQLite::Database database_;
  SQLite::Transaction transaction_;
  std::set<std::string> index_names_;
};

}  // namespace velmar::access_reader
