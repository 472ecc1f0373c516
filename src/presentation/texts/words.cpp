#include "presentation/texts/words.h"

namespace velmar::presentation {

std::string InWords(const MessageLine& line, const Words& words) {
  std::string text;
  for (const MessagePiece& piece : line) {
    const auto* row = std::get_if<MessageRow>(&piece);
    text += row != nullptr ? words(*row) : std::get<std::string>(piece);
  }
  return text;
}

}  // namespace velmar::presentation
