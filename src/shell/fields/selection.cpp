#include "shell/fields/selection.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

namespace velmar::shell {
namespace {

class Selector : public QObject {
 public:
  Selector(QLineEdit* field, QWidget* owner) : QObject(field), field_(field) {
    owner->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) Select(static_cast<QFocusEvent*>(event)->reason());
    return QObject::eventFilter(watched, event);
  }

 private:
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
