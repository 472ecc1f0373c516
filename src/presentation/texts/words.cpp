#include "presentation/texts/words.h"

namespace velmar::presentation {
namespace {

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

std::string InWords(const MessageLine& line, const Words& words) {
  std::string text;
  for (const MessagePiece& piece : line) {
    const auto* row = std::get_if<MessageRow>(&piece);
    text += row != nullptr ? words(*row) : std::get<std::string>(piece);
  }
  return text;
}

std::string UpperCase(const std::string& text) {
  std::string upper = text;
  for (std::size_t i = 0; i < upper.size(); ++i) {
    const auto byte = static_cast<unsigned char>(upper[i]);
    if (byte >= 'a' && byte <= 'z') {
      upper[i] = static_cast<char>(byte - 0x20);
    } else if (byte == 0xC3 && i + 1 < upper.size()) {
      // U+00E0 to U+00FE stand 0x20 above their capitals; U+00F7 is the division sign.
      const auto next = static_cast<unsigned char>(upper[++i]);
      if (next >= 0xA0 && next <= 0xBE && next != 0xB7) upper[i] = static_cast<char>(next - 0x20);
    }
  }
  return upper;
}

std::string FirstCharacters(const std::string& text, std::size_t count) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (ContinuesCharacter(text[i])) continue;
    if (characters == count) return text.substr(0, i);
    ++characters;
  }
  return text;
}

}  // namespace velmar::presentation
