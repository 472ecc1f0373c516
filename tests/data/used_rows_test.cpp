#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "storage/tables/csv.h"

namespace velmar {
namespace {

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The rows of both files that have a text in both languages.
std::set<int> WordedRows() {
  std::set<int> rows;
  for (const char* name : {"catalogue.csv", "texts.csv"}) {
    for (const auto& fields :
         storage::ParseCsv(BytesOf(std::filesystem::path(VELMAR_MESSAGES) / name)).rows) {
      if (!fields.at(2).empty() && !fields.at(3).empty()) rows.insert(std::stoi(fields.at(0)));
    }
  }
  return rows;
}

/// Every row that the sources name as a constant, `MessageRow kSomething{123}` or `MessageRow{123}`, and
/// where.
std::map<int, std::string> NamedRows() {
  const std::regex named("MessageRow(?:\\s+\\w+)?\\s*\\{\\s*([1-9][0-9]*)\\s*\\}");
  std::map<int, std::string> rows;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(VELMAR_SOURCES)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    const std::string source = BytesOf(entry.path());
    for (std::sregex_iterator found(source.begin(), source.end(), named), end; found != end; ++found) {
      rows.emplace(std::stoi((*found)[1]), entry.path().filename().string());
    }
  }
  return rows;
}

TEST(UsedRows, HaveATextInBothLanguages) {
  const std::set<int> worded = WordedRows();
  const std::map<int, std::string> named = NamedRows();
  EXPECT_GT(named.size(), 100U);
  for (const auto& [row, file] : named) EXPECT_TRUE(worded.contains(row)) << "row " << row << " of " << file;
}

}  // namespace
}  // namespace velmar
