#include "storage/database/set_aside.h"

#include <string>
#include <system_error>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/rename.h"

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

}  // namespace

DatabaseCondition ConditionOf(const fs::path& file) {
  switch (KindOf(file)) {
    case FileKind::kMissing:
      return IsThere(file) ? DatabaseCondition::kUnreadable : DatabaseCondition::kMissing;
    case FileKind::kAccess:
      return DatabaseCondition::kAccess;
    case FileKind::kOther:
      return DatabaseCondition::kDamaged;
    case FileKind::kSqlite:
      break;
  }
  try {
    return ReadDatabase(file, [](SQLite::Database& database) {
      SQLite::Statement check(database, "PRAGMA quick_check(1)");
      const bool good = check.executeStep() && check.getColumn(0).getString() == "ok";
      return good ? DatabaseCondition::kGood : DatabaseCondition::kDamaged;
    });
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
