#include "shell/fields/searched_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

#include "shell/fields/name_search.h"
#include "shell/fields/selection.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

SearchedBox::SearchedBox(const QString& object_name, QAbstractItemModel* names, const SearchedBoxNotes& notes,
                         QWidget* parent)
    : QuietBox(object_name, parent), notes_(notes) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setModel(names);
  setEditText({});
  SelectAllOnFocus(lineEdit(), this);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    typed_ = true;
    OfferHits(text);
  });
  connect(this, &QComboBox::textActivated, this, [this](const QString& name) { Choose(name); });
  // A model that is filled anew would show its first name; the list itself has followed it by now.
  connect(names, &QAbstractItemModel::modelReset, this, [this] {
    typed_ = false;
    setEditText(shown_);
  });
}

void SearchedBox::Show(const std::string& name) {
  const QString wanted = FromUtf8(name);
  if (typed_ && wanted == shown_) return;
  typed_ = false;
  shown_ = wanted;
  ShowAgain();
  setToolTip(wanted);
}

void SearchedBox::ShowAgain() {
  // The list's own position follows only where it matters: looking it up costs, and there are many lists.
  if (hasFocus()) setCurrentIndex(findText(shown_));
  if (currentText() != shown_) setEditText(shown_);
  lineEdit()->setCursorPosition(0);
}

void SearchedBox::Choose(const QString& name) {
  typed_ = false;
  emit Chosen(ToUtf8(name));
  ShowAgain();
  if (shown_ != name) emit Corrected(notes_.unknown, 0);
}

QStringList SearchedBox::Names() const {
  QStringList names;
  names.reserve(count());
  for (int i = 0; i < count(); ++i) names += itemText(i);
  return names;
}

bool SearchedBox::TakeTyped() {
  if (!typed_) return true;
  const QStringList hits = RankedHits(Names(), currentText());
  if (hits.isEmpty() || currentText().trimmed().isEmpty()) return false;
  Choose(hits.constFirst());
  return true;
}

void SearchedBox::Settle() {
  if (TakeTyped()) return;
  typed_ = false;
  ShowAgain();
  emit Corrected(notes_.unknown, 0);
}

void SearchedBox::OfferHits(const QString& typed) {
  if (completer() == nullptr || hits_ == nullptr) return;
  hits_->setStringList(typed.trimmed().isEmpty() ? QStringList() : RankedHits(Names(), typed));
  completer()->complete();
}

void SearchedBox::focusInEvent(QFocusEvent* event) {
  QuietBox::focusInEvent(event);
  if (completer() == nullptr) {
    hits_ = new QStringListModel(this);
    auto* finder = new QCompleter(hits_, this);
    finder->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    setCompleter(finder);
    connect(finder, qOverload<const QString&>(&QCompleter::activated), this, &SearchedBox::Choose);
  }
  // The arrow keys go on from the name that is shown.
  if (!typed_) ShowAgain();
}

void SearchedBox::focusOutEvent(QFocusEvent* event) {
  QuietBox::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  Settle();
  lineEdit()->setCursorPosition(0);
}

bool SearchedBox::event(QEvent* event) {
  // Tab would leave a text that means nothing behind.
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if ((key == Qt::Key_Tab || key == Qt::Key_Backtab) && !TakeTyped()) {
      emit Corrected(notes_.no_hit, 0);
      return true;
    }
  }
  return QuietBox::event(event);
}

void SearchedBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !TakeTyped()) {
    event->accept();
    emit Corrected(notes_.no_hit, 0);
    return;
  }
  if (event->key() == Qt::Key_Escape && typed_) {
    typed_ = false;
    ShowAgain();
    lineEdit()->selectAll();
    event->accept();
    return;
  }
  QuietBox::keyPressEvent(event);
}

}  // namespace velmar::shell
