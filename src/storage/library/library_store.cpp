#include "storage/library/library_store.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include <SQLiteCpp/Database.h>

#include "foundation/utf8.h"
#include "storage/database/connection.h"
#include "storage/database/table_rows.h"

namespace velmar::storage {
namespace {

namespace fs = std::filesystem;

/// The file of the library's root with a table for each kind measured in buildings.
constexpr std::string_view kFieldFile = "Database_sperimentale";

/// The files of `folder` ending in ".mdb", by name without regard to case.
std::vector<LibraryFile> FilesIn(const fs::path& folder) {
  std::vector<LibraryFile> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    std::error_code no_file;
    if (!SameName(entry->path().extension().string(), ".mdb") || !entry->is_regular_file(no_file)) continue;
    files.push_back({entry->path().stem().string(), entry->path()});
  }
  std::ranges::sort(files, {},
                    [](const LibraryFile& file) { return std::pair(FoldCase(file.name), file.name); });
  return files;
}

}  // namespace

std::optional<LibraryFolder> FindLibraryFolder(std::string_view key) {
  for (LibraryFolder& folder : LibraryFolders()) {
    if (folder.key == key) return std::move(folder);
  }
  return std::nullopt;
}

std::vector<std::string> TestKeywords(const std::vector<ListedTest>& tests, const std::string& all) {
  std::vector<std::string> keywords = {all};
  for (const ListedTest& test : tests) {
    const bool known = std::ranges::find(keywords, test.keyword) != keywords.end();
    if (!test.keyword.empty() && !known) keywords.push_back(test.keyword);
  }
  return keywords;
}

std::vector<std::string> TestsUnderFilter(const std::vector<ListedTest>& tests, std::string_view filter,
                                          std::string_view all) {
  std::vector<std::string> names;
  for (const ListedTest& test : tests) {
    if (filter == all || test.keyword == filter) names.push_back(test.name);
  }
  return names;
}

std::vector<LibraryFile> LibraryStore::Files(const LibraryFolder& folder) const {
  std::vector<LibraryFile> files = FilesIn(root_ / folder.folder);
  if (!folder.field) return files;
  for (LibraryFile& file : FilesIn(root_)) {
    if (SameName(file.name, kFieldFile)) files.insert(files.begin(), std::move(file));
  }
  return files;
}

std::vector<ListedTest> LibraryStore::Tests(const LibraryFolder& folder, const fs::path& file) const {
  return ReadDatabase(session_->Readable(file), [&](SQLite::Database& database) {
    std::vector<ListedTest> tests;
    for (const StoredRow& row : TableRows(database, folder.table).All()) {
      MeasuredTest test = TestFromCells(folder, row.cells);
      const TestUses uses = UsesOf(test);
      tests.push_back({std::move(test.name), std::move(test.description), std::move(test.keyword), uses});
    }
    return tests;
  });
}

std::optional<MeasuredTest> LibraryStore::Find(const LibraryFolder& folder, const fs::path& file,
                                               std::string_view name) const {
  return ReadDatabase(session_->Readable(file),
                      [&](SQLite::Database& database) -> std::optional<MeasuredTest> {
                        const auto row = TableRows(database, folder.table).Find(name);
                        if (!row) return std::nullopt;
                        return TestFromCells(folder, row->cells);
                      });
}

}  // namespace velmar::storage
