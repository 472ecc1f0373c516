#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmar {
namespace {

/// A row that is made of its number where its name should stand: `MessageRow kSomething{123}`,
/// `MessageRow{123}`, `words({123})`.
std::vector<std::string> NumberedRows(const std::string& source) {
  static const std::regex kNumbered(
      "MessageRow(\\s+\\w+)?\\s*(=\\s*)?\\{\\s*[1-9][0-9]*\\s*\\}|[Ww]ords\\(\\s*\\{\\s*[1-9][0-9]*\\s*"
      "\\}");
  std::vector<std::string> rows;
  for (std::sregex_iterator found(source.begin(), source.end(), kNumbered), end; found != end; ++found) {
    rows.push_back(found->str());
  }
  return rows;
}

TEST(NumberedRows, AreFoundInEveryWayOfWritingThem) {
  for (const char* source : {"MessageRow kSomething{123};", "MessageRow{1001}", "MessageRow row = {7};",
                             "words({142})", "InWords({142})", "MessageRow\n    kLong{12}"})
    EXPECT_EQ(NumberedRows(source).size(), 1U) << source;
  for (const char* source : {"MessageRow row{};", "words(kWidthRow)", "MessageRow{number}", "MessageRow{0}"})
    EXPECT_THAT(NumberedRows(source), testing::IsEmpty()) << source;
}

TEST(Sources, NameTheRowsOfMessages) {
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(VELMAR_SOURCES)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    ++files;
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string source(std::istreambuf_iterator<char>(file), {});
    EXPECT_THAT(NumberedRows(source), testing::IsEmpty()) << entry.path();
  }
  EXPECT_GT(files, 300);
}

}  // namespace
}  // namespace velmar
