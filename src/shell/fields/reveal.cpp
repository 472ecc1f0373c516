#include "shell/fields/reveal.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>

#include "shell/fields/field_note.h"

namespace velmar::shell {

void BringForward(QWidget* field) {
  for (QWidget* page = field; page->parentWidget() != nullptr; page = page->parentWidget()) {
    // Between a tab's page and its tabs stands the stack of pages.
    if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
      tabs->setCurrentWidget(page);
    if (auto* area = qobject_cast<QScrollArea*>(page)) area->ensureWidgetVisible(field);
  }
}

void PointAt(QWidget* field, const QString& words) {
  BringForward(field);
  field->setFocus(Qt::OtherFocusReason);
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
  FieldNote::Put(field, words, NoteLife::kUntilEntered);
}

}  // namespace velmar::shell
