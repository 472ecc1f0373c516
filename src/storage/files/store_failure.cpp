#include "storage/files/store_failure.h"

#include <cerrno>

#include "foundation/message_rows.h"

namespace velmar::storage {
MessageLine ReasonLine(StoreReason reason, const std::string& system_words) {
  switch (reason) {
    case StoreReason::kNotFound:
      return {kNotFoundRow};
    case StoreReason::kIsFolder:
    case StoreReason::kNotAFile:
      return {kNotAFileRow};
    case StoreReason::kNotAllowed:
      return {kNotAllowedRow};
    case StoreReason::kDiskFull:
      return {kDiskFullRow};
    case StoreReason::kTooLarge:
      return {kTooLargeFileRow};
    case StoreReason::kSystem:
      break;
  }
  return {kSystemErrorRow, " " + system_words};
}

StoreFailure::StoreFailure(StoreAction action, StoreReason reason, const std::string& path,
                           const std::string& system_words)
    : Failure({{action == StoreAction::kRead ? kCannotReadRow : kCannotWriteRow, " " + path},
               ReasonLine(reason, system_words)},
              (action == StoreAction::kRead ? "cannot read " : "cannot write ") + path + ": " + system_words),
      reason_(reason) {}

StoreReason ReasonOfErrorNumber(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return StoreReason::kNotFound;
    case EISDIR:
      return StoreReason::kIsFolder;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
      return StoreReason::kNotAllowed;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return StoreReason::kDiskFull;
    default:
      return StoreReason::kSystem;
  }
}

}  // namespace velmar::storage
