#pragma once

#include <string>

#include "foundation/failure.h"
#include "foundation/message.h"

namespace velmar::storage {

/// Why a file could not be read or written.
enum class StoreReason {
  kNotFound,    ///< no such file, or no such folder
  kIsFolder,    ///< a folder stands where a file is due
  kNotAFile,    ///< a device, a pipe or the like
  kNotAllowed,  ///< no permission, or marked read-only
  kDiskFull,    ///< no space left, or over a quota
  kTooLarge,    ///< larger than such a file ever is
  kSystem,      ///< anything else; the detail holds the system's words
};

/// The line that names `reason`; for kIsFolder and kNotAFile the same one.
/// @param system_words what the system says of the failure; shown for kSystem only
MessageLine ReasonLine(StoreReason reason, const std::string& system_words);

/// What a failed read or write was about.
enum class StoreAction { kRead, kWrite };

/// A file could not be read or written. Its message has two lines: the file, and the reason.
class StoreFailure : public Failure {
 public:
  /// @param path the file, as the user knows it
  /// @param system_words what the system says of the failure, for logs and for kSystem
  StoreFailure(StoreAction action, StoreReason reason, const std::string& path,
               const std::string& system_words);

  StoreReason Reason() const noexcept { return reason_; }

 private:
  StoreReason reason_;
};

/// The reason behind the error number `error` of a system call.
StoreReason ReasonOfErrorNumber(int error);

}  // namespace velmar::storage
