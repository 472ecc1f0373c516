#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "foundation/message.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// The words of `row`.
QString Text(const presentation::Words& words, MessageRow row);
/// One line.
QString Text(const presentation::Words& words, const MessageLine& line);
/// The lines of a box, joined with line breaks.
QString Text(const presentation::Words& words, const Message& message);

/// UTF-8 to Qt and back.
QString FromUtf8(const std::string& text);
std::string ToUtf8(const QString& text);

/// The control name of element `index` of a control array.
QString ArrayName(std::string_view name, int index);

}  // namespace velmar::shell
