#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <SQLiteCpp/Database.h>

#include "storage/database/connection.h"
#include "storage/database/table_rows.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// Runs `statements` on a file that is made when it is missing.
inline void Execute(const std::filesystem::path& file, const std::vector<std::string>& statements) {
  SQLite::Database database(file.string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  for (const std::string& statement : statements) database.exec(statement);
}

/// The same tables as the shipped files have, empty.
inline void MakeTables(const std::filesystem::path& file, const std::vector<TableSchema>& tables) {
  for (const TableSchema& table : tables) {
    std::string columns;
    for (const ColumnSchema& column : table.columns) {
      columns += (columns.empty() ? "" : ", ") + QuotedName(column.name) +
                 (column.type == ColumnType::kText     ? " TEXT"
                  : column.type == ColumnType::kNumber ? " REAL"
                                                       : " INTEGER");
    }
    Execute(file, {"CREATE TABLE " + QuotedName(table.name) + " (" + columns + ")",
                   std::string("CREATE ") + (table.unique_key ? "UNIQUE " : "") + "INDEX " +
                       QuotedName(table.name + " " + table.key) + " ON " + QuotedName(table.name) + " (" +
                       QuotedName(table.key) + " COLLATE NOCASE)"});
  }
}

/// Adds rows past every check, in the order of the schema.
inline void InsertRows(const std::filesystem::path& file, const TableSchema& schema,
                       const std::vector<std::vector<Cell>>& rows) {
  ChangeDatabaseWith(file, [&](SQLite::Database& database) {
    TableRows table(database, schema);
    for (const std::vector<Cell>& row : rows) table.Insert(row);
  });
}

}  // namespace velmar::storage
