#pragma once

#include <filesystem>
#include <string>

#include "foundation/failure.h"
#include "foundation/message.h"

namespace velmar::storage {

/// Why a database could not be read or changed.
enum class DatabaseProblem {
  kUnreadable,     ///< missing, or not permitted
  kNoFile,         ///< a folder, a pipe or a device
  kDamaged,        ///< no database, or a damaged one
  kLocked,         ///< another program holds it for longer than the program waits
  kReadOnly,       ///< it may not be changed
  kDiskFull,       ///< no space for a change
  kAccessFormat,   ///< a genuine Access file, to be converted first
  kMissingTable,   ///< the detail names the table
  kMissingColumn,  ///< the detail names the column
  kNotChanged,     ///< any other failure of a change
};

/// A database could not be read or changed; it is as it was.
class DatabaseFailure : public Failure {
 public:
  /// @param missing the table or column that is missing; else what SQLite says, for logs
  DatabaseFailure(DatabaseProblem problem, const std::filesystem::path& file, const std::string& missing);

  DatabaseProblem Problem() const noexcept { return problem_; }
  const std::filesystem::path& File() const noexcept { return file_; }

 private:
  DatabaseProblem problem_;
  std::filesystem::path file_;
};

}  // namespace velmar::storage
