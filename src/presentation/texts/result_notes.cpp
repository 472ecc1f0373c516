#include "presentation/texts/result_notes.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "elements/single_numbers.h"
#include "foundation/message_rows.h"
#include "presentation/texts/result_lines.h"

namespace velmar::presentation {
namespace {

/// "[1]", or nothing where the relation has no mark of its own.
std::string MarkOf(elements::Calculation calculation) {
  const elements::CalculationRow& row = elements::RowOf(calculation);
  const int mark = row.mark != 0 ? row.mark : row.theory.mark;
  return mark == 0 ? std::string() : " [" + std::to_string(mark) + "]";
}

std::optional<double> Find(const std::vector<elements::SingleNumber>& numbers, std::string_view key) {
  const auto at = std::ranges::find_if(
      numbers, [key](const elements::SingleNumber& number) { return number.key == key; });
  return at == numbers.end() ? std::nullopt : std::optional(at->value);
}

}  // namespace

std::vector<std::string> RangeNotes(elements::Calculation calculation, const elements::ResultSet& result,
                                    const Words& words) {
  std::vector<std::string> notes;
  for (const acoustics::RangeLeft& range : result.ranges_left) {
    notes.push_back(words(kOutsideRangeRow) + MarkOf(calculation) + ": " +
                    InWords(acoustics::RangeText(range), words) + ". " + words(kWentOnRow));
  }
  return notes;
}

std::string ResultingElementLine(elements::Calculation calculation, const elements::ResultSet& result,
                                 const Words& words) {
  if (!IsLining(elements::RowOf(calculation).family)) return {};
  const std::vector<elements::SingleNumber> numbers = elements::SingleNumbersOf(result, calculation);
  elements::ResultSet resulting;
  resulting.rw = Find(numbers, "Rw");
  resulting.c = Find(numbers, "C");
  resulting.ctr = Find(numbers, "Ctr");
  // The generic linings give ratings alone.
  if (!resulting.rw || !resulting.c || !resulting.ctr) return {};
  return words(kLiningRatingsRow) + " " + ResultLine(elements::Family::kSingle, resulting);
}

std::vector<std::string> ResultNotes(elements::Calculation calculation, const elements::ResultSet& result,
                                     const Message& confidence, const Words& words) {
  std::vector<std::string> notes;
  if (std::string line = ResultingElementLine(calculation, result, words); !line.empty())
    notes.push_back(std::move(line));
  for (std::string& note : RangeNotes(calculation, result, words)) notes.push_back(std::move(note));
  for (const MessageLine& line : confidence) notes.push_back(InWords(line, words));
  return notes;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
  return text;
}

}  // namespace velmar::presentation
