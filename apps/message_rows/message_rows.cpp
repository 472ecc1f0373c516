#include "message_rows/message_rows.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

namespace velmar::message_rows {
namespace {

constexpr std::array<std::string_view, 3> kColumns = {"row", "name", "use"};
constexpr std::size_t kRow = 0;
constexpr std::size_t kName = 1;
constexpr std::size_t kUse = 2;

bool HasTheColumns(const CsvTable& table) {
  return table.header.size() > kColumns.size() &&
         std::ranges::equal(kColumns, table.header | std::views::take(kColumns.size()));
}

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }
bool IsLetterOrDigit(char letter) {
  return IsDigit(letter) || IsCapital(letter) || (letter >= 'a' && letter <= 'z');
}

bool IsRowNumber(std::string_view text) {
  constexpr std::size_t kMostDigits = 6;
  return !text.empty() && text.size() <= kMostDigits && text.front() != '0' &&
         std::ranges::all_of(text, IsDigit);
}

bool IsConstantName(std::string_view text) {
  constexpr std::string_view kEnd = "Row";
  return text.size() > kEnd.size() + 2 && text[0] == 'k' && IsCapital(text[1]) && text.ends_with(kEnd) &&
         std::ranges::all_of(text, IsLetterOrDigit);
}

/// Goes through the rows of all files and writes down what is wrong.
class Check {
 public:
  void File(const MessageFile& file, const std::vector<std::string>& languages_heading) {
    if (!HasTheColumns(file.table)) {
      complaints_.push_back(file.name + ": the heading is not row, name, use and the languages");
      return;
    }
    if (file.table.header != languages_heading)
      complaints_.push_back(file.name + ": other languages than in the first file");
    for (const std::vector<std::string>& fields : file.table.rows) Row(file, fields);
  }

  std::vector<std::string> TakeComplaints() { return std::move(complaints_); }

 private:
  void Row(const MessageFile& file, const std::vector<std::string>& fields) {
    const std::string place = file.name + ": row " + fields[kRow];
    if (!IsRowNumber(fields[kRow]))
      complaints_.push_back(file.name + ": \"" + fields[kRow] + "\" is no number of a row");
    if (!rows_.insert(fields[kRow]).second) complaints_.push_back(place + " stands twice");
    if (fields[kName].empty()) {
      complaints_.push_back(place + " has no name");
    } else if (!IsConstantName(fields[kName])) {
      complaints_.push_back(place + ": \"" + fields[kName] + "\" is not written like kSaveProjectRow");
    } else if (!names_.insert(fields[kName]).second) {
      complaints_.push_back(place + ": another row has the name " + fields[kName]);
    }
    if (fields[kUse].empty()) complaints_.push_back(place + " does not say its use");
    if (fields[kUse].find_first_of("\r\n\\") != std::string::npos) {
      complaints_.push_back(place + ": a line break or a backslash in its use would leave the comment");
    }
    for (std::size_t i = kColumns.size(); i < fields.size(); ++i) {
      if (fields[i].empty()) complaints_.push_back(place + " has no text in " + file.table.header[i]);
    }
  }

  std::set<std::string> rows_;
  std::set<std::string> names_;
  std::vector<std::string> complaints_;
};

}  // namespace

std::vector<std::string> Complaints(std::span<const MessageFile> files) {
  Check check;
  for (const MessageFile& file : files) check.File(file, files.front().table.header);
  return check.TakeComplaints();
}

std::string Header(const MessageFile& file) {
  std::string text =
      "// Made by the build out of data/messages, where every change belongs.\n"
      "#pragma once\n\n"
      "#include \"foundation/message.h\"\n\n"
      "namespace velmar {\n";
  for (const std::vector<std::string>& fields : file.table.rows) {
    text += "\n/// " + fields[kUse] + "\ninline constexpr MessageRow " + fields[kName] + "{" + fields[kRow] +
            "};\n";
  }
  return text + "\n}  // namespace velmar\n";
}

}  // namespace velmar::message_rows
