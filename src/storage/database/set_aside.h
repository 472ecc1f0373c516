#pragma once

#include <filesystem>

namespace velmar::storage {

/// How a database stands.
enum class DatabaseCondition {
  kGood,
  kMissing,
  kAccess,      ///< a genuine Access file
  kDamaged,     ///< no database, or its pages do not fit together
  kUnreadable,  ///< it is there, but may not be read
  kLocked,      ///< another program holds it: cannot be told now
};

/// Looks `file` through. An unfinished change that a crash left behind is undone by that. Throws nothing that
/// comes from the file.
DatabaseCondition ConditionOf(const std::filesystem::path& file);

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
