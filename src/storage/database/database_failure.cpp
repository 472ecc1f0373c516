#include "storage/database/database_failure.h"

#include <utility>

namespace velmar::storage {
namespace {

constexpr MessageRow kDiskFullRow{1101};
constexpr MessageRow kDamagedRow{1104};
constexpr MessageRow kLockedRow{1107};
constexpr MessageRow kReadOnlyRow{1108};
constexpr MessageRow kUnreadableRow{1113};
constexpr MessageRow kMissingTableRow{1116};
constexpr MessageRow kMissingColumnRow{1117};
constexpr MessageRow kNotChangedRow{1118};
constexpr MessageRow kAccessFormatRow{1119};

MessageRow RowOf(DatabaseProblem problem) {
  switch (problem) {
    case DatabaseProblem::kUnreadable:
      return kUnreadableRow;
    case DatabaseProblem::kDamaged:
      return kDamagedRow;
    case DatabaseProblem::kLocked:
      return kLockedRow;
    case DatabaseProblem::kReadOnly:
      return kReadOnlyRow;
    case DatabaseProblem::kDiskFull:
      return kDiskFullRow;
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
