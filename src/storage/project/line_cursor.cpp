#include "storage/project/line_cursor.h"

#include <algorithm>
#include <optional>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "foundation/utf8.h"
#include "storage/files/windows_1252.h"
#include "storage/project/project_failure.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The first line of `rest`, without what ends it.
std::string_view FirstLine(std::string_view rest) { return rest.substr(0, rest.find_first_of("\r\n")); }

std::string Listed(std::span<const std::string_view> words) {
  std::string list;
  for (const std::string_view word : words) {
    list += list.empty() ? " " : ", ";
    list += word;
  }
  return list;
}

}  // namespace

LineCursor::LineCursor(std::string_view bytes) : rest_(bytes), utf8_(bytes.starts_with(kByteOrderMark)) {
  if (utf8_) rest_.remove_prefix(kByteOrderMark.size());
}

void LineCursor::Fail(MessageLine what, const std::string& detail) const {
  throw ProjectFileFailure(line_number_, std::move(what), detail);
}

std::string_view LineCursor::NextLine() {
  ++line_number_;
  if (rest_.empty()) Fail({kFileEndsRow}, "the file ends before this line");
  const std::string_view line = FirstLine(rest_);
  rest_.remove_prefix(line.size());
  rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest_.size()));
  if (line.find('\0') != std::string_view::npos) Fail({kNullCharacterRow}, "the line holds a null character");
  return line;
}

std::string LineCursor::Text() {
  const std::string_view line = NextLine();
  if (!utf8_) return Utf8FromWindows1252(line);
  if (!IsUtf8(line)) Fail({kLineNotUtf8Row}, "the line is not UTF-8");
  return std::string(line);
}

std::string LineCursor::TrimmedText() { return std::string(Trimmed(Text())); }

double LineCursor::Number() {
  const std::optional<double> value = ParseDecimal(NextLine());
  if (!value) Fail({kNumberExpectedRow}, "a number was expected");
  return *value;
}

float LineCursor::Single() {
  const std::optional<float> value = ParseSingle(NextLine());
  if (!value) Fail({kNumberExpectedRow}, "a single-precision number was expected");
  return *value;
}

int LineCursor::Integer(int lowest, int highest) {
  std::string text;
  return Integer(lowest, highest, text);
}

int LineCursor::Integer(int lowest, int highest, std::string& text) {
  text = Text();
  const std::optional<double> value = ParseDecimal(text);
  const double whole = value ? RoundToEven(*value) : 0.0;
  if (!value || whole < lowest || whole > highest) {
    const std::string from = std::to_string(lowest);
    const std::string to = std::to_string(highest);
    Fail({kIntegerFromRow, " " + from + " ", kIntegerToRow, " " + to},
         "a whole number from " + from + " to " + to + " was expected");
  }
  return static_cast<int>(whole);
}

bool LineCursor::Boolean() { return Choice({"Vero", "True", "Falso", "False"}) < 2; }

int LineCursor::Choice(std::span<const std::string_view> words) {
  const std::string_view line = NextLine();
  const auto found = std::ranges::find_if(words, [line](auto word) { return SameWord(word, line); });
  if (found == words.end())
    Fail({kOneOfExpectedRow, Listed(words)}, "one of these was expected:" + Listed(words));
  return static_cast<int>(found - words.begin());
}

void LineCursor::Blank() {
  if (!Trimmed(NextLine()).empty()) Fail({kBlankExpectedRow}, "an empty line was expected");
}

void LineCursor::Label(std::string_view beginning) {
  const std::string_view line = Trimmed(NextLine());
  if (!SameWord(line.substr(0, beginning.size()), beginning)) {
    const std::string quoted = " \"" + std::string(beginning) + "\"";
    Fail({kBeginningExpectedRow, quoted}, "a line that begins with" + quoted + " was expected");
  }
}

bool LineCursor::OnlyBlankLinesFollow() const {
  return rest_.find_first_not_of(" \r\n") == std::string_view::npos;
}

bool LineCursor::NextIsOneOf(std::initializer_list<std::string_view> words) const {
  if (rest_.empty()) return false;
  const std::string_view line = FirstLine(rest_);
  return std::ranges::any_of(words, [line](auto word) { return SameWord(word, line); });
}

}  // namespace velmar::storage
