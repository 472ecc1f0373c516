#include "storage/database/connection.h"

#include <string>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

enum class Purpose { kRead, kChange };

DatabaseProblem ProblemOf(int code, Purpose purpose) {
  const bool change = purpose == Purpose::kChange;
  constexpr int kPrimaryCode = 0xFF;
  switch (code & kPrimaryCode) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_FORMAT:
      return DatabaseProblem::kDamaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return DatabaseProblem::kLocked;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:  // also a folder in which no journal can be made
      return change ? DatabaseProblem::kReadOnly : DatabaseProblem::kUnreadable;
    case SQLITE_FULL:
      return DatabaseProblem::kDiskFull;
    case SQLITE_IOERR:
    case SQLITE_NOMEM:  // says nothing about the file
      return change ? DatabaseProblem::kNotChanged : DatabaseProblem::kUnreadable;
    default:
      return change ? DatabaseProblem::kNotChanged : DatabaseProblem::kDamaged;
  }
}

void RequireOwnFormat(const fs::path& file) {
  switch (KindOf(file)) {
    case FileKind::kMissing:
      throw DatabaseFailure(DatabaseProblem::kUnreadable, file, "missing or not permitted");
    case FileKind::kAccess:
      throw DatabaseFailure(DatabaseProblem::kAccessFormat, file, "an Access file");
    case FileKind::kOther:
      throw DatabaseFailure(DatabaseProblem::kDamaged, file, "no database");
    case FileKind::kSqlite:
      return;
  }
}

/// The mark "read-only" of a file is to hold for the superuser as well.
void RequireWritable(const fs::path& file) {
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((fs::status(file).permissions() & kAnyWrite) == fs::perms::none)
    throw DatabaseFailure(DatabaseProblem::kReadOnly, file, "marked read-only");
}

void Configure(SQLite::Database& database) {
  sqlite3* handle = database.getHandle();
  // Else a misspelt column in quotation marks is a text.
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  // The file may come from anywhere.
  sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  database.exec("PRAGMA cell_size_check = ON");
}

void JournalBesideTheFile(SQLite::Database& database) {
  SQLite::Statement mode(database, "PRAGMA journal_mode");
  if (mode.executeStep() && mode.getColumn(0).getString() == "wal") {
    mode.reset();
    database.exec("PRAGMA journal_mode = DELETE");
  }
  // Also the journal's removal is to reach the disk: it is what confirms the change.
  database.exec("PRAGMA synchronous = EXTRA");
}

}  // namespace

void ReadDatabaseWith(const fs::path& file, const std::function<void(SQLite::Database&)>& work) {
  RequireOwnFormat(file);
  try {
    // Not opened read-only, so that what a killed program left can be undone.
    SQLite::Database database(file.string(), SQLite::OPEN_READWRITE, kBusyTimeoutMs);
    Configure(database);
    database.exec("PRAGMA query_only = ON");
    work(database);
  } catch (const SQLite::Exception& error) {
    throw DatabaseFailure(ProblemOf(error.getErrorCode(), Purpose::kRead), file, error.what());
  }
}

void ChangeDatabaseWith(const fs::path& file, const std::function<void(SQLite::Database&)>& work) {
  RequireOwnFormat(file);
  RequireWritable(file);
  try {
    SQLite::Database database(file.string(), SQLite::OPEN_READWRITE, kBusyTimeoutMs);
    Configure(database);
    JournalBesideTheFile(database);
    // Taken for writing at once: two programs that both read first would block each other.
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    work(database);
    transaction.commit();
  } catch (const SQLite::Exception& error) {
    throw DatabaseFailure(ProblemOf(error.getErrorCode(), Purpose::kChange), file, error.what());
  }
}

}  // namespace velmar::storage
