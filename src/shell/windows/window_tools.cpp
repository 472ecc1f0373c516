#include "shell/windows/window_tools.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QStringList>
#include <QWidget>

namespace velmar::shell {
namespace {

QString Key(const RememberedSizes& sizes, const char* piece) {
  return sizes.name + QLatin1Char('/') + QLatin1String(piece);
}

}  // namespace

QString WindowTools::Text(MessageRow row) const { return ToQt(words(row)); }

void WindowTools::Tell(const Failure& failure) const {
  QStringList lines;
  for (const MessageLine& line : failure.UserMessage()) lines << ToQt(presentation::InWords(line, words));
  tell(lines.join(QLatin1Char('\n')));
}

QString ToQt(const std::string& text) { return QString::fromStdString(text); }
std::string FromQt(const QString& text) { return text.toStdString(); }

bool RestoreSizes(const QSettings* memory, const RememberedSizes& sizes) {
  if (memory == nullptr) return false;
  const bool known = sizes.window->restoreGeometry(memory->value(Key(sizes, "posizione")).toByteArray());
  if (sizes.columns != nullptr)
    sizes.columns->restoreState(memory->value(Key(sizes, "colonne")).toByteArray());
  if (sizes.splitter != nullptr)
    sizes.splitter->restoreState(memory->value(Key(sizes, "divisione")).toByteArray());
  return known;
}

void SaveSizes(QSettings* memory, const RememberedSizes& sizes) {
  if (memory == nullptr) return;
  memory->setValue(Key(sizes, "posizione"), sizes.window->saveGeometry());
  if (sizes.columns != nullptr) memory->setValue(Key(sizes, "colonne"), sizes.columns->saveState());
  if (sizes.splitter != nullptr) memory->setValue(Key(sizes, "divisione"), sizes.splitter->saveState());
}

}  // namespace velmar::shell
