#pragma once

#include <functional>
#include <string>

#include "foundation/message.h"

namespace velmar::presentation {

/// What stands on paper and in tables for a value that is not there.
inline constexpr const char* kNoValue = "–";

/// Gives the words of a catalogue row in the language of the user, UTF-8; an empty text for an unknown row.
using Words = std::function<std::string(MessageRow)>;

/// `line` in words.
std::string InWords(const MessageLine& line, const Words& words);

}  // namespace velmar::presentation
