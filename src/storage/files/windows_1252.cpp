#include "storage/files/windows_1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "foundation/utf8.h"
#include "storage/files/windows_1252_equivalents.h"

namespace velmar::storage {
namespace {

/// The characters of the bytes 80 to 9F; the rest of the code page is that of Unicode.
constexpr std::array<char32_t, 32> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t kFirstSpecial = 0x80;
constexpr char32_t kLastSpecial = 0x9F;

/// The byte of `c`, where the code page has the character.
std::optional<char> ByteOf(char32_t c) {
  const bool same = c < kFirstSpecial || (c > kLastSpecial && c <= 0xFF);
  if (same) return static_cast<char>(c);
  const auto* found = std::ranges::find(kSpecial, c);
  if (found == kSpecial.end()) return std::nullopt;
  return static_cast<char>(kFirstSpecial + static_cast<char32_t>(found - kSpecial.begin()));
}

bool IsCombiningAccent(char32_t c) { return c >= 0x0300 && c <= 0x036F; }

}  // namespace

bool IsInWindows1252(char32_t character) { return ByteOf(character).has_value(); }

std::string Utf8FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) {
    const char32_t code = static_cast<std::uint8_t>(byte);
    const bool special = code >= kFirstSpecial && code <= kLastSpecial;
    AppendCharacter(text, special ? kSpecial.at(code - kFirstSpecial) : code);
  }
  return text;
}

std::string Windows1252FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  char32_t letter = 0;  // the character before, for an accent that follows it
  while (!text.empty()) {
    const char32_t c = TakeCharacter(text);
    if (IsCombiningAccent(c)) {
      // Accents that the code page has no letter for are left out: the bare letter is the nearest.
      if (const char32_t composed = Composed(letter, c); composed != 0) bytes.back() = *ByteOf(composed);
      letter = 0;
      continue;
    }
    letter = c;
    if (const std::optional<char> byte = ByteOf(c)) {
      bytes.push_back(*byte);
    } else {
      const std::string_view nearest = NearestEquivalent(c);
      bytes += nearest.empty() ? std::string_view("?") : nearest;
    }
  }
  return bytes;
}

}  // namespace velmar::storage
