#include "shell/fields/list_boxes.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QWheelEvent>

#include "shell/fields/number_field.h"
#include "shell/fields/selection.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {

QuietBox::QuietBox(const QString& object_name, QWidget* parent) : QComboBox(parent) {
  setObjectName(object_name);
  setFocusPolicy(Qt::StrongFocus);
  setMaxVisibleItems(20);
}

void QuietBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void QuietBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QComboBox::keyPressEvent(event);
  if (!enter) return;
  event->accept();
  FocusNextField(this);
}

void ChoiceBox::Offer(const QStringList& items) {
  if (items == items_) return;
  items_ = items;
  clear();
  addItems(items);
}

void ChoiceBox::Show(int index) {
  if (index != currentIndex()) setCurrentIndex(index);
}

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
  const bool letter =
      !event->text().isEmpty() && event->text().at(0).isPrint() && event->key() != Qt::Key_Space;
  if (letter && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    event->accept();
    return;
  }
  QuietBox::keyPressEvent(event);
}

CountBox::CountBox(const QString& object_name, int lowest, int highest, QWidget* parent)
    : QuietBox(object_name, parent), highest_(highest) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  for (int i = lowest; i <= highest; ++i) addItem(QString::number(i));
  static const QRegularExpression digits(QStringLiteral("^[0-9]{0,3}$"));
  setValidator(new QRegularExpressionValidator(digits, this));
  lineEdit()->setAlignment(Qt::AlignRight);
  setFixedWidth(fontMetrics().horizontalAdvance('0') * 4 + 2 * fontMetrics().height());
  SelectAllOnFocus(lineEdit(), this);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    // Behind a count that was capped a blank may stand, which lets anything pass after it.
    QString bare = text;
    bare.remove(QRegularExpression(QStringLiteral("[^0-9]")));
    if (bare != text) setEditText(bare);
    Take(bare);
    FollowText();
    if (bare.toInt() > highest_) emit Corrected(Correction::kAboveHighest, highest_);
  });
  connect(this, &QComboBox::textActivated, this, [this](const QString& text) {
    if (text != shown_) Take(text);
  });
}

void CountBox::Take(const QString& text) {
  shown_ = text;
  emit Edited(ToUtf8(text));
}

void CountBox::Show(const std::string& text) {
  const QString wanted = FromUtf8(text);
  shown_ = wanted;
  if (wanted == currentText()) return;
  setEditText(wanted);
  FollowText();
}

// Left behind, the list would take its old entry for a new choice when the field is left.
void CountBox::FollowText() {
  const QString text = currentText();
  const int caret = lineEdit()->cursorPosition();
  setCurrentIndex(findText(text.trimmed()));
  if (currentText() != text) setEditText(text);
  lineEdit()->setCursorPosition(caret);
}

}  // namespace velmar::shell
