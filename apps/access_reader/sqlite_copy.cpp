#include "access_reader/sqlite_copy.h"

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include "access_reader/exit_code.h"
#include "storage/tables/schema.h"

namespace velmar::access_reader {
namespace {

using storage::QuotedName;

const char* TypeOf(Storage storage) {
  switch (storage) {
    case Storage::kInteger:
      return "INTEGER";
    case Storage::kReal:
      return "REAL";
    case Storage::kText:
      return "TEXT";
    case Storage::kBytes:
      return "BLOB";
  }
  return "";
}

std::string CreateTable(const AccessTable& table) {
  std::string columns;
  for (const ColumnInfo& column : table.Columns()) {
    if (!columns.empty()) columns += ", ";
    columns += QuotedName(column.name) + " " + TypeOf(column.storage);
  }
  return "CREATE TABLE " + QuotedName(table.Name()) + " (" + columns + ")";
}

std::string Insert(const AccessTable& table) {
  std::string parameters = "?";
  for (std::size_t i = 1; i < table.Columns().size(); ++i) parameters += ", ?";
  return "INSERT INTO " + QuotedName(table.Name()) + " VALUES (" + parameters + ")";
}

struct Binder {
  SQLite::Statement& statement;
  int column = 0;

  void operator()(std::monostate) const { statement.bind(column); }
  void operator()(std::int64_t value) const { statement.bind(column, value); }
  void operator()(double value) const { statement.bind(column, value); }
  void operator()(const std::string& value) const { statement.bind(column, value); }
  void operator()(const std::vector<std::byte>& value) const {
    statement.bind(column, static_cast<const void*>(value.data()), static_cast<int>(value.size()));
  }
};

}  // namespace

SqliteCopy::SqliteCopy(const std::string& path)
    : database_(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE), transaction_(database_) {}

void SqliteCopy::Add(AccessTable& table) {
  database_.exec(CreateTable(table));
  CopyRows(table);
  for (const IndexInfo& index : table.Indexes()) CreateIndex(table.Name(), index);
}

void SqliteCopy::CopyRows(AccessTable& table) {
  constexpr std::uint64_t kMostRows = 1'000'000;
  SQLite::Statement insert(database_, Insert(table));
  std::vector<Value> row;
  std::uint64_t rows = 0;
  while (table.Next(row)) {
    if (++rows > kMostRows) throw ReadingFailure{ExitCode::kTableDamaged, "more than a million rows"};
    for (std::size_t i = 0; i < row.size(); ++i) std::visit(Binder{insert, static_cast<int>(i) + 1}, row[i]);
    insert.exec();
    insert.reset();
  }
  // A cut or overwritten file loses rows in silence; the count in the table's head gives it away.
  if (rows != table.StatedRows()) throw ReadingFailure{ExitCode::kTableDamaged, "rows are missing"};
}

void SqliteCopy::CreateIndex(const std::string& table, const IndexInfo& index) {
  // Index names are common to all tables in SQLite.
  std::string name = table + " " + index.name;
  while (!index_names_.insert(name).second) name += "'";
  std::string columns;
  for (const std::string& column : index.columns) {
    if (!columns.empty()) columns += ", ";
    columns += QuotedName(column);
  }
  const std::string target = QuotedName(name) + " ON " + QuotedName(table) + " (" + columns + ")";
  if (index.unique) {
    try {
      database_.exec("CREATE UNIQUE INDEX " + target);
      return;
    } catch (const SQLite::Exception&) {
      // Two texts can become equal where libmdb has no character for theirs; the rows count more.
    }
  }
  database_.exec("CREATE INDEX " + target);
}

void SqliteCopy::Commit() { transaction_.commit(); }

}  // namespace velmar::access_reader
