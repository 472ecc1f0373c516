#include "storage/library/own_measurements.h"

#include <system_error>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "platform/file_system.h"
#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/rename.h"
#include "storage/database/table_rows.h"
#include "storage/files/unfinished.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// Why `name` is no name of a test; nothing when it is one.
std::optional<Message> BadName(const std::string& name) {
  if (IsBlank(name)) return Message{{kMeasurementWithoutNameRow}};
  if (HoldsControlCharacter(name) || !IsUtf8(name)) return Message{{kBadResultNameRow}};
  return std::nullopt;
}

Message NameExists(const std::string& name) { return {{kMeasurementExistsRow, " " + name}}; }

/// A file of an earlier version gains the columns that it lacks, so that nothing of a test is lost.
void AddMissingColumns(SQLite::Database& database, const TableSchema& schema) {
  const TableRows rows(database, schema);
  for (const ColumnSchema& column : schema.columns) {
    if (rows.Has(column.name)) continue;
    database.exec("ALTER TABLE " + QuotedName(schema.name) + " ADD COLUMN " + QuotedName(column.name) +
                  (column.type == ColumnType::kText ? " TEXT" : " REAL"));
  }
}

bool Exists(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

}  // namespace

fs::path OwnMeasurements::FileOf(const LibraryFolder& folder) const {
  return root_ / folder.folder / fs::path(kOwnSeries).concat(".mdb");
}

std::vector<MeasuredTest> OwnMeasurements::All(const LibraryFolder& folder) const {
  if (!Exists(FileOf(folder))) return {};
  return ReadDatabase(FileOf(folder), [&folder](SQLite::Database& database) {
    std::vector<MeasuredTest> tests;
    for (const StoredRow& row : TableRows(database, folder.table).All())
      tests.push_back(TestFromCells(folder, row.cells));
    return tests;
  });
}

/// The empty file takes its name in one step; whoever makes it at the same time makes the same.
void OwnMeasurements::MakeFile(const LibraryFolder& folder) const {
  const fs::path file = FileOf(folder);
  if (Exists(file)) return;
  try {
    fs::create_directories(file.parent_path());
    const Unfinished unfinished(file);
    {
      SQLite::Database database(unfinished.Path().string(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
      SQLite::Transaction transaction(database);
      for (const std::string& statement : CreateStatements(folder.table)) database.exec(statement);
      transaction.commit();
    }
    platform::SyncToDisk(unfinished.Path());
    RenameToFreeName(unfinished.Path(), file);
    platform::SyncToDisk(file.parent_path());
  } catch (const fs::filesystem_error& error) {
    throw DatabaseFailure(DatabaseProblem::kNotChanged, file, error.what());
  } catch (const SQLite::Exception& error) {
    throw DatabaseFailure(DatabaseProblem::kNotChanged, file, error.what());
  }
}

std::optional<Message> OwnMeasurements::Add(const LibraryFolder& folder,
                                            std::span<const MeasuredTest> tests) {
  for (const MeasuredTest& test : tests) {
    if (auto refusal = BadName(test.name)) return refusal;
  }
  MakeFile(folder);
  // Looked through before anything is written, so that a refusal changes nothing.
  return ChangeDatabase(FileOf(folder), [&](SQLite::Database& database) -> std::optional<Message> {
    const TableRows stored(database, folder.table);
    for (std::size_t i = 0; i < tests.size(); ++i) {
      bool known = stored.Find(tests[i].name).has_value();
      for (std::size_t j = 0; j < i; ++j) known = known || SameName(tests[j].name, tests[i].name);
      if (known) return NameExists(tests[i].name);
    }
    AddMissingColumns(database, folder.table);
    TableRows rows(database, folder.table);
    for (const MeasuredTest& test : tests) rows.Insert(CellsFromTest(folder, test));
    return std::nullopt;
  });
}

std::optional<Message> OwnMeasurements::Change(const LibraryFolder& folder, std::string_view name,
                                               const MeasuredTest& test) {
  if (auto refusal = BadName(test.name)) return refusal;
  return ChangeDatabase(FileOf(folder), [&](SQLite::Database& database) -> std::optional<Message> {
    AddMissingColumns(database, folder.table);
    TableRows rows(database, folder.table);
    const auto id = rows.FindExactly(name);
    if (!id) return Message{{kMeasurementGoneRow, " " + std::string(name)}};
    const auto other = rows.Find(test.name);
    if (other && other->id != *id) return NameExists(test.name);
    rows.Update({*id, CellsFromTest(folder, test)});
    return std::nullopt;
  });
}

std::optional<MeasuredTest> OwnMeasurements::Delete(const LibraryFolder& folder, std::string_view name) {
  return ChangeDatabase(FileOf(folder), [&](SQLite::Database& database) -> std::optional<MeasuredTest> {
    TableRows rows(database, folder.table);
    const auto id = rows.FindExactly(name);
    if (!id) return std::nullopt;
    const auto row = rows.Find(name);
    MeasuredTest test = TestFromCells(folder, row->cells);
    rows.Delete(*id);
    return test;
  });
}

}  // namespace velmar::storage
