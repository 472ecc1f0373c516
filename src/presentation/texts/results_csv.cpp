#include "presentation/texts/results_csv.h"

#include "foundation/decimal.h"

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

std::string ResultsCsv(const ResultsTable& table, std::span<const elements::SingleNumber> numbers,
                       std::span<const std::string> notes) {
  std::string text = kByteOrderMark;
  text += Row(table.frequency_heading, table.value_heading, table.reference_heading);
  for (const ResultsTableRow& row : table.rows) {
    if (row.visible) text += Row(row.title, row.value, row.reference);
  }
  for (const elements::SingleNumber& number : numbers) {
    const std::string unit = *number.unit == '\0' ? "" : std::string(" [") + number.unit + ']';
    if (number.further) text += Row(number.symbol + unit, FormatFixed(number.value, number.decimals), "");
  }
  for (const std::string& note : notes) text += Row(note, "", "");
  return text;
}

}  // namespace velmar::presentation
