#pragma once

#include <filesystem>
#include <string>

namespace velmar::storage {

/// Gives `from` the name `to` unless something stands there already; nothing is ever replaced.
/// @return false when `to` is taken
/// @throws std::filesystem::filesystem_error for any other failure
bool RenameToFreeName(const std::filesystem::path& from, const std::filesystem::path& to);

/// Gives `file` its own name with `ending` added (".originale"), or, where that is taken, with a number
/// behind
/// (".originale2").
/// @return the new name
/// @throws std::filesystem::filesystem_error
std::filesystem::path RenameWithEnding(const std::filesystem::path& file, const std::string& ending);

}  // namespace velmar::storage
