#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/catalogue_rows.h"
#include "foundation/message.h"
#include "storage/results/saved_result.h"

namespace velmar::storage {

enum class SaveStatus {
  kSaved,
  kNoName,      ///< nothing to tell: an empty name gives the saving up
  kBadName,     ///< told with kBadResultNameRow: the name shows nothing, holds a line break or is not UTF-8
  kNameExists,  ///< told with kResultExistsRow
};

/// What the grid of the results window shows of a row.
struct ListedResult {
  std::string name{};
  std::string description{};
  std::optional<double> rating{};  ///< as SavedResult::rating, dB
};

/// The results database. Every operation opens the file, works and closes it; a change is one transaction.
/// Every member throws DatabaseFailure when the file cannot be read or changed.
class ResultsStore {
 public:
  explicit ResultsStore(std::filesystem::path file) : file_(std::move(file)) {}

  /// Name, description and rating of every row, in the order of insertion.
  std::vector<ListedResult> List(ResultTable table) const;

  /// The row called `name`, case ignored.
  std::optional<SavedResult> Find(ResultTable table, std::string_view name) const;

  /// Adds `result`, with a column for its messages where it has some and the table none; its description cut
  /// at 250 characters, unless its name is empty or exists (case ignored).
  SaveStatus Save(ResultTable table, const SavedResult& result);

  /// Removes the first row whose name is exactly `name`: unlike in the look-ups, case counts.
  /// @return false when there is none
  bool Delete(ResultTable table, std::string_view name);

 private:
  std::filesystem::path file_;
};

}  // namespace velmar::storage
