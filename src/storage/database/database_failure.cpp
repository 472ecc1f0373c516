#include "storage/database/database_failure.h"

#include <utility>

#include "foundation/message_rows.h"

namespace velmar::storage {
namespace {

MessageRow RowOf(DatabaseProblem problem) {
  switch (problem) {
    case DatabaseProblem::kUnreadable:
    case DatabaseProblem::kNoFile:
      return kUnreadableRow;
    case DatabaseProblem::kDamaged:
      return kDatabaseDamagedRow;
    case DatabaseProblem::kLocked:
      return kDatabaseLockedRow;
    case DatabaseProblem::kReadOnly:
      return kFileReadOnlyRow;
    case DatabaseProblem::kDiskFull:
      return kDatabaseDiskFullRow;
    case DatabaseProblem::kAccessFormat:
      return kAccessFormatRow;
    case DatabaseProblem::kMissingTable:
      return kMissingTableRow;
    case DatabaseProblem::kMissingColumn:
      return kMissingColumnRow;
    case DatabaseProblem::kNotChanged:
      return kNotChangedRow;
  }
  return {};
}

Message MessageOf(DatabaseProblem problem, const std::filesystem::path& file, const std::string& missing) {
  const std::string path = file.string();
  switch (problem) {
    case DatabaseProblem::kMissingTable:
    case DatabaseProblem::kMissingColumn:
      return {{RowOf(problem), " " + missing}, {path}};
    case DatabaseProblem::kNotChanged:
      return {{kNotChangedRow}, {path}};
    case DatabaseProblem::kNoFile:
      return {{kUnreadableRow, " " + path}, {kNotAFileRow}};
    default:
      return {{RowOf(problem), " " + path}};
  }
}

}  // namespace

DatabaseFailure::DatabaseFailure(DatabaseProblem problem, const std::filesystem::path& file,
                                 const std::string& missing)
    : Failure(MessageOf(problem, file, missing), file.string() + ": " + missing),
      problem_(problem),
      file_(file) {}

}  // namespace velmar::storage
