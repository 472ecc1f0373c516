#include "storage/project/keyed_block.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "foundation/message_rows.h"
#include "foundation/utf8.h"
#include "storage/files/windows_1252.h"
#include "storage/project/project_failure.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {
namespace {

constexpr char32_t kHighestCharacter = 0x10FFFF;

bool IsControl(char32_t c) { return c < 0x20 || (c >= 0x7F && c <= 0x9F); }
bool IsSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

std::string NumberedEscape(char32_t c) {
  std::array<char, 8> digits{};
  constexpr int kHexadecimal = 16;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(c), kHexadecimal)
          .ptr;
  return "\\u{" + std::string(digits.data(), end) + "}";
}

std::string Escaped(std::string_view value) {
  std::string text;
  std::string_view rest = value;
  while (!rest.empty()) {
    const bool first = rest.size() == value.size();
    const char32_t c = TakeCharacter(rest);
    if (c == '\\') {
      text += "\\\\";
    } else if (c == '\n') {
      text += "\\n";
    } else if (c == '\r') {
      text += "\\r";
    } else if ((c == ' ' && (first || rest.empty())) || IsControl(c) || !IsInWindows1252(c)) {
      text += NumberedEscape(c);
    } else {
      AppendCharacter(text, c);
    }
  }
  return text;
}

/// The character of "{HEX}" at the beginning of `rest`, which is taken off it.
std::optional<char32_t> TakeNumbered(std::string_view& rest) {
  const std::size_t end = rest.find('}');
  if (!rest.starts_with('{') || end == std::string_view::npos) return std::nullopt;
  const std::string_view digits = rest.substr(1, end - 1);
  std::uint32_t number = 0;
  constexpr int kHexadecimal = 16;
  const char* behind = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), behind, number, kHexadecimal);
  if (error != std::errc{} || stop != behind || number > kHighestCharacter || IsSurrogate(number))
    return std::nullopt;
  rest.remove_prefix(end + 1);
  return number;
}

/// What Escaped() made `text` of; nothing when an escape is none.
std::optional<std::string> Unescaped(std::string_view text) {
  std::string value;
  while (!text.empty()) {
    const char c = text.front();
    text.remove_prefix(1);
    if (c != '\\') {
      value += c;
      continue;
    }
    if (text.empty()) return std::nullopt;
    const char kind = text.front();
    text.remove_prefix(1);
    if (kind == '\\') {
      value += '\\';
    } else if (kind == 'n') {
      value += '\n';
    } else if (kind == 'r') {
      value += '\r';
    } else if (const auto numbered = kind == 'u' ? TakeNumbered(text) : std::nullopt) {
      AppendCharacter(value, *numbered);
    } else {
      return std::nullopt;
    }
  }
  return value;
}

}  // namespace

void WriteKeyedBlock(LineWriter& out, const elements::KeyedValues& values) {
  if (values.IsEmpty()) return;
  out.Text(kKeyedBlockHeading);
  for (const auto& [name, value] : values.Entries()) {
    out.Text(value.empty() ? name + " =" : name + " = " + Escaped(WithReplacements(value)));
  }
}

elements::KeyedValues ReadKeyedBlock(LineCursor& lines) {
  if (!lines.NextIsOneOf({kKeyedBlockHeading})) return {};
  lines.Text();
  std::vector<elements::KeyedValues::Entry> entries;
  std::unordered_set<std::string> names;
  while (!lines.OnlyBlankLinesFollow()) {
    const std::string line = lines.Text();
    const std::size_t sign = line.find('=');
    const std::string name(Trimmed(std::string_view(line).substr(0, sign)));
    if (sign == std::string::npos || !elements::KeyedValues::IsName(name))
      lines.Fail({kNamedValueExpectedRow}, "a line \"name = value\" was expected");
    if (!names.insert(name).second) lines.Fail({kValueNameTwiceRow, " " + name}, "a name twice: " + name);
    auto value = Unescaped(Trimmed(std::string_view(line).substr(sign + 1)));
    if (!value) lines.Fail({kEscapeInvalidRow, " " + name}, "not an escape, in the value of " + name);
    entries.emplace_back(name, *std::move(value));
  }
  return elements::KeyedValues(std::move(entries));
}

}  // namespace velmar::storage
