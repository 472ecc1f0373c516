#include "foundation/utf8.h"

#include <cstdint>

#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace velmar {
namespace {

/// `text` with `change` in place of each of its characters; bytes that are not UTF-8 stay.
template <typename Change>
std::string Changed(std::string_view text, Change change) {
  std::string changed;
  changed.reserve(text.size());
  while (!text.empty()) {
    const char first = text.front();
    const char32_t character = TakeCharacter(text);
    if (character == kNoCharacter) {
      changed += first;
    } else {
      AppendCharacter(changed, static_cast<char32_t>(change(static_cast<UChar32>(character))));
    }
  }
  return changed;
}

bool IsInkless(UChar32 character) {
  const auto category = u_charType(character);
  return u_isUWhiteSpace(character) != 0 || category == U_CONTROL_CHAR || category == U_FORMAT_CHAR;
}

}  // namespace

char32_t TakeCharacter(std::string_view& text) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  // Longer than any character, and within the index type of the library whatever the text's length.
  const auto length = static_cast<std::int32_t>(text.size() < 8 ? text.size() : 8);
  std::int32_t at = 0;
  UChar32 character = 0;
  U8_NEXT(bytes, at, length, character);
  text.remove_prefix(character < 0 ? 1 : static_cast<std::size_t>(at));
  return character < 0 ? kNoCharacter : static_cast<char32_t>(character);
}

void AppendCharacter(std::string& text, char32_t character) {
  std::uint8_t bytes[U8_MAX_LENGTH];
  std::int32_t length = 0;
  U8_APPEND_UNSAFE(bytes, length, static_cast<UChar32>(character));
  text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    if (TakeCharacter(text) == kNoCharacter) return false;
  }
  return true;
}

std::string WithReplacements(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string whole;
  whole.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    AppendCharacter(whole, character == kNoCharacter ? kReplacement : character);
  }
  return whole;
}

std::size_t CountCharacters(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) TakeCharacter(text);
  return count;
}

std::string FirstCharacters(std::string_view text, std::size_t count) {
  std::string_view rest = text;
  for (; count > 0 && !rest.empty(); --count) TakeCharacter(rest);
  return std::string(text.substr(0, text.size() - rest.size()));
}

std::string UpperCase(std::string_view text) { return Changed(text, u_toupper); }

std::string FoldCase(std::string_view text) {
  return Changed(text, [](UChar32 character) { return u_foldCase(character, U_FOLD_CASE_DEFAULT); });
}

bool SameName(std::string_view a, std::string_view b) { return FoldCase(a) == FoldCase(b); }

bool IsBlank(std::string_view text) {
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character == kNoCharacter || !IsInkless(static_cast<UChar32>(character))) return false;
  }
  return true;
}

bool HoldsControlCharacter(std::string_view text) {
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character == kNoCharacter) continue;
    const auto category = u_charType(static_cast<UChar32>(character));
    if (category == U_CONTROL_CHAR || category == U_LINE_SEPARATOR || category == U_PARAGRAPH_SEPARATOR)
      return true;
  }
  return false;
}

}  // namespace velmar
