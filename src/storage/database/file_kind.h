#pragma once

#include <filesystem>

namespace velmar::storage {

/// What a database file is, whatever its name says.
enum class FileKind {
  kMissing,  ///< there is no such file, or it may not be read
  kSqlite,   ///< the program's own format
  kAccess,   ///< Jet 3, Jet 4 or ACE
  kOther,    ///< none of these; also an empty file
  kNoFile,   ///< a folder, a pipe or a device
};

/// The kind of `file`, told by its first bytes. Throws nothing.
FileKind KindOf(const std::filesystem::path& file);

}  // namespace velmar::storage
