#include "shell/fields/search_field.h"

#include <QKeyEvent>

#include "shell/fields/corrections.h"

namespace velmar::shell {

SearchField::SearchField(const QString& object_name, const QString& caption, QWidget* parent)
    : QLineEdit(parent) {
  setObjectName(object_name);
  setPlaceholderText(caption);
  setAccessibleName(caption);
  setClearButtonEnabled(true);
}

void SearchField::SayNoHit(const presentation::Words& words) {
  without_hit_ = true;
  NoteCorrection(this, Correction::kNoEntry, 0, words);
}

void SearchField::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  without_hit_ = false;
  emit Entered();
  if (without_hit_) {
    event->accept();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

}  // namespace velmar::shell
