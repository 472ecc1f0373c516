#include "shell/pages/page.h"

#include <QComboBox>
#include <QLineEdit>

namespace velmar::shell {

void Page::RemoveHighlights() {
  for (QComboBox* list : findChildren<QComboBox*>()) {
    if (list->lineEdit() != nullptr) list->lineEdit()->deselect();
  }
}

}  // namespace velmar::shell
