#include "presentation/texts/results_csv.h"

namespace velmar::presentation {
namespace {

/// Without it spreadsheets take the file for Windows-1252.
constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

std::string Cell(const std::string& text) {
  if (text.find_first_of(";\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

std::string Row(const std::string& first, const std::string& second, const std::string& third) {
  return Cell(first) + ';' + Cell(second) + ';' + Cell(third) + "\r\n";
}

}  // namespace

std::string ResultsCsv(const ResultsTable& table) {
  std::string text = kByteOrderMark;
  text += Row(table.frequency_heading, table.value_heading, table.reference_heading);
  for (const ResultsTableRow& row : table.rows) {
    if (row.visible) text += Row(row.title, row.value, row.reference);
  }
  return text;
}

}  // namespace velmar::presentation
