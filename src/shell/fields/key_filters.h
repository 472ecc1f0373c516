#pragma once

#include <QChar>
#include <QString>

namespace velmar::shell {

/// A text field at the moment a key is pressed.
struct FieldState {
  QString text{};
  int caret = 0;  ///< where the selection begins, if there is one
  int selection_length = 0;
};

/// `NumericKeyFilter`: which keys a field of real numbers takes: digits, backspace, one decimal separator, an
/// exponent, and "-" where negatives are allowed or behind the exponent's letter.
/// @return the key to enter ("e" as "E"), or a null character for a key that is swallowed
QChar NumericKeyFilter(QChar key, const FieldState& field, bool allow_negative, QChar decimal_separator);

/// `IntegerKeyFilter`: digits, backspace, and a leading "-" where negatives are allowed.
QChar IntegerKeyFilter(QChar key, const FieldState& field, bool allow_negative);

}  // namespace velmar::shell
