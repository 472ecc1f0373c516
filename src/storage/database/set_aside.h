#pragma once

#include <filesystem>

namespace velmar::storage {

/// How a database stands.
enum class DatabaseCondition {
  kGood,
  kMissing,
  kAccess,   ///< a genuine Access file
  kDamaged,  ///< no database, or its pages do not fit together
  kLocked,   ///< cannot be told now
};

/// Looks `file` through. An unfinished change that a crash left behind is undone by that.
DatabaseCondition ConditionOf(const std::filesystem::path& file);

/// Moves a damaged database out of the way, unchanged, under its name with ".danneggiato" added; a file of
/// that name is never replaced, a number is added instead. A journal that belongs to it goes with it.
/// @return the new name
/// @throws DatabaseFailure
std::filesystem::path SetAside(const std::filesystem::path& file);

}  // namespace velmar::storage
