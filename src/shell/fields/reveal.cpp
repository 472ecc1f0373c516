#include "shell/fields/reveal.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>

#include "shell/fields/field_note.h"

namespace velmar::shell {

void PointAt(const QWidget& window, const QString& name, const QString& words) {
  auto* field = window.findChild<QWidget*>(name);
  if (field == nullptr) return;
  for (QWidget* page = field; page->parentWidget() != nullptr; page = page->parentWidget()) {
    // Between a tab's page and its tabs stands the stack of pages.
    if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
      tabs->setCurrentWidget(page);
    if (auto* area = qobject_cast<QScrollArea*>(page)) area->ensureWidgetVisible(field);
  }
  field->setFocus(Qt::OtherFocusReason);
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
  FieldNote::Put(field, words, NoteLife::kUntilEntered);
}

}  // namespace velmar::shell
