#pragma once

#include <filesystem>

namespace velmar::storage {

/// How a database stands.
enum class DatabaseCondition {
  kGood,
  kMissing,
  kAccess,      ///< a genuine Access file
  kDamaged,     ///< no database, or its pages do not fit together
  kIndex,       ///< the tables are whole, but an index does not agree with its table
  kNoFile,      ///< a folder, a pipe or a device stands under its name
  kUnreadable,  ///< it is there, but may not be read
  kLocked,      ///< another program holds it: cannot be told now
};

/// Looks `file` through. An unfinished change that a crash left behind is undone by that. Throws nothing that
/// comes from the file.
DatabaseCondition ConditionOf(const std::filesystem::path& file);

/// Keeps a copy of `file` under its name with ".copia-" and the day ("2026-11-21") added; nothing is
/// replaced, a number is added instead.
/// @return the name of the copy
/// @throws DatabaseFailure
std::filesystem::path KeepDatedCopy(const std::filesystem::path& file);

/// Builds every index of `file` anew from its table, all or none.
/// @throws DatabaseFailure when that cannot be, or the file is not whole afterwards; it is as it was then
void RebuildIndexes(const std::filesystem::path& file);

/// Moves a damaged database out of the way, unchanged, under its name with ".danneggiato" added; a file of
/// that name is never replaced, a number is added instead. Journals that belong to it go with it.
/// @return the new name
/// @throws DatabaseFailure
std::filesystem::path SetAside(const std::filesystem::path& file);

/// Moves the journals out of the way that stand beside `file` without belonging to what is to stand there: a
/// new database would take them for its own and be damaged by them.
/// @throws DatabaseFailure
void SetAsideCompanions(const std::filesystem::path& file);

}  // namespace velmar::storage
