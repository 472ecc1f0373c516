#include "shell/fields/selection.h"

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace velmar::shell {
namespace {

class Selector : public QObject {
 public:
  Selector(QLineEdit* field, QWidget* owner) : QObject(field), field_(field) {
    owner->installEventFilter(this);
    if (owner != field) field->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) Select(static_cast<QFocusEvent*>(event)->reason());
    return IsStepKey(*event) || QObject::eventFilter(watched, event);
  }

 private:
  // Steps back and forth are those of the whole set-up, not of the letters in one field.
  static bool IsStepKey(QEvent& event) {
    if (event.type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    if (!key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo)) return false;
    event.ignore();
    return true;
  }

  // The press of the mouse that brought the focus puts the caret afterwards.
  void Select(Qt::FocusReason reason) {
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
        reason == Qt::MenuBarFocusReason)
      return;
    field_->selectAll();
    if (reason == Qt::MouseFocusReason) QTimer::singleShot(0, field_, &QLineEdit::selectAll);
  }

  QLineEdit* field_;
};

}  // namespace

void SelectAllOnFocus(QLineEdit* field, QWidget* owner) {
  new Selector(field, owner != nullptr ? owner : field);
}

}  // namespace velmar::shell
