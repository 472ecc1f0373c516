#include "storage/database/set_aside.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include "storage/database/connection.h"
#include "storage/database/database_failure.h"
#include "storage/database/file_kind.h"
#include "storage/database/rename.h"

namespace velmar::storage {

namespace fs = std::filesystem;

DatabaseCondition ConditionOf(const fs::path& file) {
  switch (KindOf(file)) {
    case FileKind::kMissing:
      return DatabaseCondition::kMissing;
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
    return failure.Problem() == DatabaseProblem::kDamaged ? DatabaseCondition::kDamaged
                                                          : DatabaseCondition::kLocked;
  }
}

fs::path SetAside(const fs::path& file) {
  try {
    fs::path name = RenameWithEnding(file, ".danneggiato");
    fs::path journal = file;
    journal += "-journal";
    if (fs::exists(journal)) {
      fs::path journal_name = name;
      journal_name += "-journal";
      RenameToFreeName(journal, journal_name);
    }
    return name;
  } catch (const fs::filesystem_error& error) {
    throw DatabaseFailure(DatabaseProblem::kReadOnly, file, error.what());
  }
}

}  // namespace velmar::storage
