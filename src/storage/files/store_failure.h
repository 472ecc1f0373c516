#pragma once

#include <string>
#include <utility>

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
  kLinkLoop,    ///< a link that leads back to itself
  kNameTooLong,
  kInUse,        ///< another program holds it
  kNoAnswer,     ///< the disk or the network does not answer
  kNoResources,  ///< too many open files, no memory
  kSystem,       ///< anything else; the detail holds the system's words
};

/// The line that names `reason`, for kIsFolder and kNotAFile the same one.
/// @param error the system's error number, shown for kSystem: its words are English
MessageLine ReasonLine(StoreReason reason, int error);

/// The same in Italian and English words, for what goes wrong before a message catalogue is read.
std::pair<std::string, std::string> ReasonWords(StoreReason reason, int error);

/// What a failed read or write was about.
enum class StoreAction { kRead, kWrite };

/// What became of the file that was to be replaced.
enum class PreviousFile {
  kNone,    ///< there was none
  kIntact,  ///< it is as it was; told in a third line
};

/// A file could not be read or written. Its message has two lines: the file, and the reason.
class StoreFailure : public Failure {
 public:
  /// @param path the file, as the user knows it
  /// @param detail why, in English, for logs
  StoreFailure(StoreAction action, StoreReason reason, const std::string& path, const std::string& detail);
  /// @param error the error number of the system call that failed
  StoreFailure(StoreAction action, int error, const std::string& path, PreviousFile previous);

  StoreReason Reason() const noexcept { return reason_; }

 private:
  StoreReason reason_;
};

/// The reason behind the error number `error` of a system call.
StoreReason ReasonOfErrorNumber(int error);

}  // namespace velmar::storage
