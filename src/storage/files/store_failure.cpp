#include "storage/files/store_failure.h"

#include <cerrno>

namespace velmar::storage {
namespace {

constexpr MessageRow kNotFoundRow{1134};
constexpr MessageRow kNotAFileRow{1135};
constexpr MessageRow kNotAllowedRow{1136};
constexpr MessageRow kDiskFullRow{1137};
constexpr MessageRow kTooLargeRow{1138};
constexpr MessageRow kSystemRow{1139};

}  // namespace

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
      return {kTooLargeRow};
    case StoreReason::kSystem:
      break;
  }
  return {kSystemRow, " " + system_words};
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
