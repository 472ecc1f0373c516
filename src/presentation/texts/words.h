#pragma once

#include <functional>
#include <string>

#include "foundation/message.h"

namespace velmar::presentation {

/// Gives the words of a catalogue row in the language of the user, UTF-8; an empty text for an unknown row.
using Words = std::function<std::string(MessageRow)>;

/// `line` in words.
std::string InWords(const MessageLine& line, const Words& words);

/// `text` in capitals: ASCII and the accented letters of Western European languages. UTF-8.
std::string UpperCase(const std::string& text);

/// The first `count` characters of `text`, never cutting one of its UTF-8 sequences.
std::string FirstCharacters(const std::string& text, std::size_t count);

}  // namespace velmar::presentation
