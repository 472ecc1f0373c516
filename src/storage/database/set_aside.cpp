#include "storage/database/set_aside.h"

#include <array>
#include <ctime>
#include <string>
#include <system_error>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include "platform/file_system.h"
#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/rename.h"
#include "storage/files/unfinished.h"

namespace velmar::storage {

namespace fs = std::filesystem;

namespace {

constexpr const char* kDamagedEnding = ".danneggiato";

bool IsThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

/// The journals of `file` become those of `name`, or, where such stand there already, get a number behind.
void MoveCompanions(const fs::path& file, const fs::path& name) {
  for (const char* ending : {"-journal", "-wal", "-shm"}) {
    fs::path companion = file;
    companion += ending;
    if (!IsThere(companion)) continue;
    fs::path free_name = name;
    free_name += ending;
    for (int number = 2; !RenameToFreeName(companion, free_name); ++number) {
      free_name = name;
      free_name += ending + std::to_string(number);
    }
  }
}

/// After the whole check: the quick one does not compare an index with its table.
DatabaseCondition ConditionIn(SQLite::Database& database) {
  SQLite::Statement check(database, "PRAGMA integrity_check");
  DatabaseCondition condition = DatabaseCondition::kGood;
  while (check.executeStep()) {
    const std::string said = check.getColumn(0).getString();
    if (said == "ok") return DatabaseCondition::kGood;
    // "row 3 missing from index i", "wrong # of entries in index i", "non-unique entry in index i"
    if (said.find(" index ") == std::string::npos || said.find('\n') != std::string::npos)
      return DatabaseCondition::kDamaged;
    condition = DatabaseCondition::kIndex;
  }
  return condition == DatabaseCondition::kGood ? DatabaseCondition::kDamaged : condition;
}

/// The day as the user's clock tells it.
std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm day{};
  ::localtime_r(&now, &day);
  std::array<char, 16> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &day)};
}

}  // namespace

DatabaseCondition ConditionOf(const fs::path& file) {
  switch (KindOf(file)) {
    case FileKind::kMissing:
      return IsThere(file) ? DatabaseCondition::kUnreadable : DatabaseCondition::kMissing;
    case FileKind::kAccess:
      return DatabaseCondition::kAccess;
    case FileKind::kNoFile:
      return DatabaseCondition::kNoFile;
    case FileKind::kOther:
      return DatabaseCondition::kDamaged;
    case FileKind::kSqlite:
      break;
  }
  try {
    return ReadDatabase(file, [](SQLite::Database& database) { return ConditionIn(database); });
  } catch (const DatabaseFailure& failure) {
    switch (failure.Problem()) {
      case DatabaseProblem::kDamaged:
        return DatabaseCondition::kDamaged;
      case DatabaseProblem::kLocked:
        return DatabaseCondition::kLocked;
      default:
        return DatabaseCondition::kUnreadable;
    }
  }
}

fs::path KeepDatedCopy(const fs::path& file) {
  try {
    const Unfinished unfinished(file);
    // A change that a crash left half done is undone first: its journal does not come with the copy.
    if (KindOf(file) == FileKind::kSqlite)
      ReadDatabaseWith(file, [](SQLite::Database& database) { database.execAndGet("PRAGMA user_version"); });
    fs::copy_file(file, unfinished.Path());
    platform::SyncToDisk(unfinished.Path());
    for (int number = 1;; ++number) {
      fs::path name = file;
      name += ".copia-" + Today();
      if (number > 1) name += "-" + std::to_string(number);
      if (!RenameToFreeName(unfinished.Path(), name)) continue;
      platform::SyncToDisk(file.parent_path());
      return name;
    }
  } catch (const fs::filesystem_error& error) {
    const bool full = error.code() == std::errc::no_space_on_device;
    throw DatabaseFailure(full ? DatabaseProblem::kDiskFull : DatabaseProblem::kReadOnly, file, error.what());
  }
}

void RebuildIndexes(const fs::path& file) {
  ChangeDatabaseWith(file, [&](SQLite::Database& database) {
    try {
      database.exec("REINDEX");
    } catch (const SQLite::Exception& error) {
      // Two rows of one name under an index that allows one: the table itself is wrong.
      constexpr int kPrimaryCode = 0xFF;
      if ((error.getErrorCode() & kPrimaryCode) != SQLITE_CONSTRAINT) throw;
      throw DatabaseFailure(DatabaseProblem::kDamaged, file, error.what());
    }
    if (ConditionIn(database) != DatabaseCondition::kGood)
      throw DatabaseFailure(DatabaseProblem::kDamaged, file, "not whole after its indexes were built anew");
  });
}

fs::path SetAside(const fs::path& file) {
  try {
    fs::path name = RenameWithEnding(file, kDamagedEnding);
    MoveCompanions(file, name);
    return name;
  } catch (const fs::filesystem_error& error) {
    throw DatabaseFailure(DatabaseProblem::kReadOnly, file, error.what());
  }
}

void SetAsideCompanions(const fs::path& file) {
  try {
    fs::path name = file;
    name += kDamagedEnding;
    MoveCompanions(file, name);
  } catch (const fs::filesystem_error& error) {
    throw DatabaseFailure(DatabaseProblem::kReadOnly, file, error.what());
  }
}

}  // namespace velmar::storage
