#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/access/access_session.h"
#include "storage/library/measured_test.h"
#include "storage/library/rating_check.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// A file of the library: one series of tests.
struct LibraryFile {
  std::string name{};  ///< without its ending
  std::filesystem::path path{};
};

/// What lists show of a test.
struct ListedTest {
  std::string name{};
  std::string description{};
  std::string keyword{};
  TestUses uses{};
};

/// The folder with the tree key `key` ("Rw", "Infissi", "Piccoli elementi", ...); nothing for an unknown one.
std::optional<LibraryFolder> FindLibraryFolder(std::string_view key);

/// The entries of the keyword filter: `all`, then every keyword once in the order of appearance.
std::vector<std::string> TestKeywords(const std::vector<ListedTest>& tests, const std::string& all);
/// The names of the tests whose keyword is `filter`, or of all under `all`.
std::vector<std::string> TestsUnderFilter(const std::vector<ListedTest>& tests, std::string_view filter,
                                          std::string_view all);

/// The library of measured structures: read, never written. Its files may be genuine Access files.
class LibraryStore {
 public:
  /// @param root the folder "Database", below which every kind has its folder
  LibraryStore(std::filesystem::path root, AccessSession& session)
      : root_(std::move(root)), session_(&session) {}

  /// The files ending in ".mdb" (case ignored) of `folder`, by name without regard to case; none for a folder
  /// that is empty or missing. Before those of a kind measured in buildings stands "Database_sperimentale" of
  /// the library's root, which holds all such kinds, where there is one.
  std::vector<LibraryFile> Files(const LibraryFolder& folder) const;

  /// All tests of a file in the order stored.
  /// @throws DatabaseFailure, AccessFailure
  std::vector<ListedTest> Tests(const LibraryFolder& folder, const std::filesystem::path& file) const;

  /// The test called `name`, case ignored. Columns that the file lacks read as null.
  /// @throws DatabaseFailure, AccessFailure
  std::optional<MeasuredTest> Find(const LibraryFolder& folder, const std::filesystem::path& file,
                                   std::string_view name) const;

 private:
  std::filesystem::path root_;
  AccessSession* session_;
};

}  // namespace velmar::storage
