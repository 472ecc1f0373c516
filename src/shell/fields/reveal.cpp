#include "shell/fields/reveal.h"

#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabWidget>

#include "shell/fields/field_note.h"

namespace velmar::shell {
namespace {

/// Lines of text that are seen above and below a field that is brought forward: room for what is said about
/// it.
constexpr int kLinesAround = 7;

/// A tab that has just become current is laid out only later; what scrolls would scroll to where the field
/// was.
void LayOut(const QWidget& area) {
  for (const QWidget* widget : area.findChildren<QWidget*>()) {
    if (widget->layout() != nullptr && widget->isVisibleTo(&area)) widget->layout()->activate();
  }
}

}  // namespace

void BringForward(QWidget* field) {
  for (QWidget* page = field; page->parentWidget() != nullptr; page = page->parentWidget()) {
    // Between a tab's page and its tabs stands the stack of pages.
    if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
      tabs->setCurrentWidget(page);
    if (auto* area = qobject_cast<QScrollArea*>(page)) {
      LayOut(*area);
      area->ensureWidgetVisible(field, 0, kLinesAround * field->fontMetrics().height());
    }
  }
}

void PointAt(QWidget* field, const QString& words) {
  BringForward(field);
  field->setFocus(Qt::OtherFocusReason);
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->selectAll();
  FieldNote::Put(field, words, NoteLife::kUntilEntered);
}

}  // namespace velmar::shell
