#include "storage/database/connection.h"

#include <cerrno>
#include <optional>
#include <string>
#include <utility>

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

bool IsFullDisk(int system_error) {
  return system_error == ENOSPC || system_error == EDQUOT || system_error == EFBIG;
}

/// @param system_error what the system said to the library when it last failed there; 0 for nothing
DatabaseProblem ProblemOf(int code, int system_error, Purpose purpose) {
  const bool change = purpose == Purpose::kChange;
  constexpr int kPrimaryCode = 0xFF;
  const int primary = code & kPrimaryCode;
  // A journal that a full disk does not take cannot be opened: that is no matter of permissions.
  if ((primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR) && IsFullDisk(system_error))
    return DatabaseProblem::kDiskFull;
  switch (primary) {
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
    case FileKind::kNoFile:
      throw DatabaseFailure(DatabaseProblem::kNoFile, file, "no regular file");
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

/// What the library was last told by the system over `database`.
int SystemErrorOf(const std::unique_ptr<SQLite::Database>& database) {
  return database ? sqlite3_system_errno(database->getHandle()) : 0;
}

DatabaseFailure FailureOf(const SQLite::Exception& error, int system_error, Purpose purpose,
                          const fs::path& file) {
  return {ProblemOf(error.getErrorCode(), system_error, purpose), file, error.what()};
}

/// @param system_error what the system said when the changes did not reach the disk: the library keeps that
/// of
///   statements only
void Commit(SQLite::Transaction& transaction, int& system_error) {
  errno = 0;
  try {
    transaction.commit();
  } catch (const SQLite::Exception&) {
    system_error = errno;
    throw;
  }
}

/// Whether the next question would meet the same.
bool IsAboutTheFile(DatabaseProblem problem) {
  switch (problem) {
    case DatabaseProblem::kDamaged:  // perhaps a single row
    case DatabaseProblem::kMissingTable:
    case DatabaseProblem::kMissingColumn:
      return false;
    default:
      return true;
  }
}

}  // namespace

struct DatabaseReading::State {
  std::unique_ptr<SQLite::Database> database{};
  std::optional<DatabaseFailure> failure{};
};

DatabaseReading::DatabaseReading(fs::path file, int patience_ms)
    : file_(std::move(file)), patience_ms_(patience_ms), state_(std::make_unique<State>()) {}

DatabaseReading::~DatabaseReading() = default;

void DatabaseReading::With(const std::function<void(SQLite::Database&)>& work) {
  if (state_->failure) throw DatabaseFailure(*state_->failure);
  std::unique_ptr<SQLite::Database>& database = state_->database;
  try {
    if (!database) {
      RequireOwnFormat(file_);
      // Not opened read-only, so that what a killed program left can be undone.
      database = std::make_unique<SQLite::Database>(file_.string(), SQLite::OPEN_READWRITE, patience_ms_);
      Configure(*database);
      database->exec("PRAGMA query_only = ON");
    }
    work(*database);
  } catch (const SQLite::Exception& error) {
    Fail(FailureOf(error, SystemErrorOf(database), Purpose::kRead, file_));
  } catch (const DatabaseFailure& failure) {
    Fail(failure);
  }
}

void DatabaseReading::Fail(const DatabaseFailure& failure) {
  if (IsAboutTheFile(failure.Problem())) state_->failure = failure;
  throw DatabaseFailure(failure);
}

void ReadDatabaseWith(const fs::path& file, const std::function<void(SQLite::Database&)>& work) {
  DatabaseReading(file).With(work);
}

void ChangeDatabaseWith(const fs::path& file, const std::function<void(SQLite::Database&)>& work) {
  RequireOwnFormat(file);
  RequireWritable(file);
  std::unique_ptr<SQLite::Database> database;
  int commit_error = 0;
  try {
    database = std::make_unique<SQLite::Database>(file.string(), SQLite::OPEN_READWRITE, kChangePatienceMs);
    Configure(*database);
    JournalBesideTheFile(*database);
    // Taken for writing at once: two programs that both read first would block each other.
    SQLite::Transaction transaction(*database, SQLite::TransactionBehavior::IMMEDIATE);
    work(*database);
    Commit(transaction, commit_error);
  } catch (const SQLite::Exception& error) {
    throw FailureOf(error, commit_error != 0 ? commit_error : SystemErrorOf(database), Purpose::kChange,
                    file);
  }
}

}  // namespace velmar::storage
