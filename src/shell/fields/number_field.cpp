#include "shell/fields/number_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QValidator>

#include "foundation/decimal.h"
#include "shell/fields/key_filters.h"
#include "shell/fields/selection.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr QChar kDecimalSign{u','};
constexpr int kWidthInDigits = 7;

/// `text` without the blanks and the unit that a number of a spreadsheet or a data sheet brings along:
/// "  33  ", "120 mm". A text that is more than that stays as it is, to be refused.
QString BareNumber(const QString& text) {
  static const QRegularExpression number_and_unit(
      QStringLiteral("^\\s*([+-]?[0-9]+(?:[.,][0-9]*)?(?:[eE]-?[0-9]+)?)\\s*"
                     "(?:mm|cm|m|m²|dB|Hz|GPa|kg/m²|kg/m³|MN/m³|%)?\\s*$"));
  const QRegularExpressionMatch match = number_and_unit.match(text);
  if (!match.hasMatch()) return text;
  QString number = match.captured(1);
  if (number.startsWith('+')) number.remove(0, 1);
  return number;
}

/// What may come in by paste and drop: beginnings of a number, with the point turned into a comma.
class NumberShape : public QValidator {
 public:
  NumberShape(NumberKind kind, QObject* parent) : QValidator(parent), kind_(kind) {}

  State validate(QString& text, int& caret) const override {
    static const QRegularExpression real(QStringLiteral("^[0-9]*(,[0-9]*)?([eE]-?[0-9]*)?$"));
    static const QRegularExpression signed_real(QStringLiteral("^-?[0-9]*(,[0-9]*)?([eE]-?[0-9]*)?$"));
    static const QRegularExpression whole(QStringLiteral("^[0-9]*$"));
    if (const QString bare = BareNumber(text); bare.size() != text.size()) {
      text = bare;
      caret = static_cast<int>(text.size());
    }
    text.replace('.', ',');
    if (kind_ == NumberKind::kArea && text == "-") return Acceptable;
    const QRegularExpression& shape = kind_ == NumberKind::kInteger ? whole
                                      : kind_ == NumberKind::kTerm  ? signed_real
                                                                    : real;
    return shape.match(text).hasMatch() ? Acceptable : Invalid;
  }

 private:
  NumberKind kind_;
};

bool TakesEntries(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr;
}

bool IsText(const QKeyEvent& event) {
  const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return !command && event.text().size() == 1 && event.text().at(0).isPrint();
}

}  // namespace

void FocusFirstField(QWidget* page) {
  for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
    const bool reachable = next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus);
    if (!reachable || !page->isAncestorOf(next) || next->focusProxy() != nullptr || !TakesEntries(next))
      continue;
    next->setFocus(Qt::OtherFocusReason);
    return;
  }
}

void FocusNextField(QWidget* from) {
  QWidget* next = from->nextInFocusChain();
  while (next != from) {
    const bool reachable = next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus);
    const bool inside = next->focusProxy() != nullptr || from->isAncestorOf(next) || next->isAncestorOf(from);
    if (reachable && !inside && TakesEntries(next)) {
      next->setFocus(Qt::TabFocusReason);
      return;
    }
    next = next->nextInFocusChain();
  }
}

NumberField::NumberField(const QString& object_name, NumberKind kind, QWidget* parent)
    : QLineEdit(parent), kind_(kind) {
  setObjectName(object_name);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setValidator(new NumberShape(kind, this));
  const QMargins margins = textMargins();
  const int digits = fontMetrics().horizontalAdvance('0') * kWidthInDigits;
  setFixedWidth(digits + margins.left() + margins.right() + fontMetrics().height());
  SelectAllOnFocus(this);
  connect(this, &QLineEdit::textEdited, this, &NumberField::TakeEdit);
  connect(this, &QLineEdit::returnPressed, this, [this] { FocusNextField(this); });
  connect(this, &QLineEdit::inputRejected, this, [this] { emit Corrected(Correction::kNoNumber, 0); });
}

void NumberField::TakeEdit(const QString& text) {
  const std::string typed = ToUtf8(text);
  unfinished_ = !text.isEmpty() && text != "-" && !ParseDecimal(typed);
  if (!unfinished_) shown_ = text;
  edited_ = true;
  emit Edited(typed);
}

void NumberField::SetKind(NumberKind kind) {
  if (kind == kind_) return;
  kind_ = kind;
  delete validator();
  setValidator(new NumberShape(kind, this));
}

void NumberField::Show(const std::string& text) {
  QString wanted = FromUtf8(text);
  const std::optional<double> number = ParseDecimal(text);
  if (decimals_ >= 0 && number && wanted.section(',', 1).size() > decimals_)
    wanted = FromUtf8(FormatFixed(*number, decimals_));
  if (unfinished_ && (wanted == shown_ || wanted == this->text())) return;
  // An unknown number of the set-up is 0 and has no text.
  const std::optional<double> typed = ParseDecimal(ToUtf8(this->text()));
  const bool same_number = typed && (number || wanted.isEmpty()) && *typed == number.value_or(0.0);
  if (edited_ && same_number) return;
  unfinished_ = false;
  shown_ = wanted;
  if (wanted != this->text()) setText(wanted);
}

bool NumberField::TypeKey(QChar key) {
  if (key == u'.') key = kDecimalSign;
  const FieldState field{text(), hasSelectedText() ? selectionStart() : cursorPosition(),
                         static_cast<int>(selectedText().size())};
  if (kind_ == NumberKind::kArea && key == u'-' &&
      (field.text.isEmpty() || field.selection_length == field.text.size())) {
    insert("-");
    return true;
  }
  const QChar passed = kind_ == NumberKind::kInteger
                           ? IntegerKeyFilter(key, field, false)
                           : NumericKeyFilter(key, field, kind_ == NumberKind::kTerm, kDecimalSign);
  if (passed.isNull()) return false;
  insert(QString(passed));
  return true;
}

void NumberField::keyPressEvent(QKeyEvent* event) {
  if (!IsText(*event) || isReadOnly()) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  TypeKey(event->text().at(0));
  event->accept();
}

void NumberField::Settle() {
  if (unfinished_) {
    unfinished_ = false;
    setText(shown_);
    emit Edited(ToUtf8(shown_));
    emit Corrected(Correction::kUnfinished, 0);
  }
  if (!edited_) return;
  edited_ = false;
  emit Left();
}

void NumberField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason) Settle();
}

}  // namespace velmar::shell
