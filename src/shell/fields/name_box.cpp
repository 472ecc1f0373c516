#include "shell/fields/name_box.h"

#include <QFocusEvent>
#include <QLineEdit>

#include "shell/fields/selection.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

NameBox::NameBox(const QString& object_name, std::function<std::vector<std::string>()> names, QWidget* parent)
    : QuietBox(object_name, parent), names_(std::move(names)) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(10);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { typed_ = true; });
  SelectAllOnFocus(lineEdit(), this);
  connect(lineEdit(), &QLineEdit::returnPressed, this, &NameBox::Settle);
  connect(this, &QComboBox::textActivated, this, &NameBox::Take);
}

void NameBox::Show(const std::string& name) {
  shown_ = FromUtf8(name);
  if (typed_ || currentText() == shown_) return;
  setEditText(shown_);
  lineEdit()->setCursorPosition(0);
}

void NameBox::Take(const QString& name) {
  typed_ = false;
  emit Named(ToUtf8(name));
}

// The results database changes behind the window: it is read when the list is asked for.
void NameBox::ReadNames() {
  if (!names_) return;
  const QString text = currentText();
  clear();
  for (const std::string& name : names_()) addItem(FromUtf8(name));
  setCurrentIndex(findText(text));
  setEditText(text);
}

void NameBox::showPopup() {
  if (!hasFocus()) ReadNames();
  QuietBox::showPopup();
}

void NameBox::focusInEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason) ReadNames();
  QuietBox::focusInEvent(event);
}

void NameBox::focusOutEvent(QFocusEvent* event) {
  QuietBox::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) Settle();
}

void NameBox::Settle() {
  if (typed_) Take(currentText());
}

}  // namespace velmar::shell
