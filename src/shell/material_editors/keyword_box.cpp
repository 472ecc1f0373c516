#include "shell/material_editors/keyword_box.h"

#include <QCompleter>
#include <QWheelEvent>

#include "shell/windows/phrases.h"
#include "shell/windows/window_tools.h"

namespace velmar::material_editors {

KeywordBox::KeywordBox(const QString& object_name, const std::vector<std::string>& keywords, QWidget* parent)
    : QComboBox(parent) {
  setObjectName(object_name);
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  for (const std::string& keyword : keywords) addItem(shell::FromUtf8(keyword));
  // An inline completion would put another's keyword in place of a new, shorter one.
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setFilterMode(Qt::MatchContains);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(20);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setEditText({});
}

void KeywordBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace velmar::material_editors
