#include "shell/windows/window_tools.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QWidget>

#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

QString Key(const RememberedSizes& sizes, const char* piece) {
  return sizes.name + QLatin1Char('/') + QLatin1String(piece);
}

}  // namespace

QString WindowTools::Text(MessageRow row) const { return shell::Text(words, row); }
QString WindowTools::Text(const Message& message) const { return shell::Text(words, message); }

void WindowTools::Tell(const Failure& failure) const { Tell(Text(failure.UserMessage())); }

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
