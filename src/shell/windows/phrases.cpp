#include "shell/windows/phrases.h"

#include <QStringList>

namespace velmar::shell {

QString FromUtf8(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

std::string ToUtf8(const QString& text) { return text.toStdString(); }

QString ArrayName(std::string_view name, int index) {
  return QString::fromUtf8(name.data(), static_cast<int>(name.size())) + '_' + QString::number(index);
}

QString Text(const presentation::Words& words, MessageRow row) { return FromUtf8(words(row)); }

QString Text(const presentation::Words& words, const MessageLine& line) {
  return FromUtf8(presentation::InWords(line, words));
}

QString Text(const presentation::Words& words, const Message& message) {
  QStringList lines;
  for (const MessageLine& line : message) lines += Text(words, line);
  return lines.join('\n');
}

}  // namespace velmar::shell
