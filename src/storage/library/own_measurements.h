#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/message.h"
#include "storage/library/measured_test.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// The series that holds the user's own measurements of a kind, beside the shipped ones.
inline constexpr std::string_view kOwnSeries = "Misure proprie";

/// The user's own measurements: a file of each kind, made when the first one is stored. The other files of
/// the library are never written to. Each change is one transaction. Every function throws DatabaseFailure
/// when a file cannot be read or changed; it is as it was then.
class OwnMeasurements {
 public:
  /// @param root the folder "Database", below which every kind has its folder
  explicit OwnMeasurements(std::filesystem::path root) : root_(std::move(root)) {}

  std::filesystem::path FileOf(const LibraryFolder& folder) const;

  /// All of them in the order stored; none where there is no file yet.
  std::vector<MeasuredTest> All(const LibraryFolder& folder) const;

  /// Adds all of `tests`, or none of them.
  /// @return the refusal: a test without a name, with one that lists cannot show, or with one that exists
  ///         (case ignored)
  std::optional<Message> Add(const LibraryFolder& folder, std::span<const MeasuredTest> tests);

  /// Puts `test` where the one called exactly `name` stands.
  /// @return the refusal: as above, or when none is called so any more
  std::optional<Message> Change(const LibraryFolder& folder, std::string_view name, const MeasuredTest& test);

  /// Deletes the test called exactly `name`.
  /// @return what was deleted, so that it can be added again; nothing when none was called so
  std::optional<MeasuredTest> Delete(const LibraryFolder& folder, std::string_view name);

 private:
  void MakeFile(const LibraryFolder& folder) const;

  std::filesystem::path root_;
};

}  // namespace velmar::storage
