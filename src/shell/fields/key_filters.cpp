#include "shell/fields/key_filters.h"

namespace velmar::shell {
namespace {

constexpr QChar kBackspace{8};
constexpr QChar kSwallowed{};

bool CoversAll(const FieldState& field) {
  return field.selection_length > 0 && field.selection_length == field.text.size();
}

bool IsDigit(QChar key) { return key >= u'0' && key <= u'9'; }

bool LeadingMinusPasses(const FieldState& field) {
  return field.caret == 0 && (!field.text.startsWith('-') || CoversAll(field));
}

QChar Before(const FieldState& field) {
  return field.caret > 0 && field.caret <= field.text.size() ? field.text.at(field.caret - 1) : QChar{};
}

bool SeparatorPasses(const FieldState& field, QChar separator) {
  if (CoversAll(field)) return true;
  const qsizetype exponent = field.text.indexOf('E', 0, Qt::CaseInsensitive);
  if (exponent >= 0 && field.caret > exponent) return false;
  const bool before_minus = field.caret == 0 && field.text.startsWith('-');
  return !field.text.contains(separator) && !before_minus;
}

}  // namespace

QChar NumericKeyFilter(QChar key, const FieldState& field, bool allow_negative, QChar decimal_separator) {
  if (IsDigit(key) || key == kBackspace) return key;
  if (key == decimal_separator) return SeparatorPasses(field, decimal_separator) ? key : kSwallowed;
  if (key == u'-' && allow_negative && LeadingMinusPasses(field)) return key;
  if (field.caret == 0) return kSwallowed;
  const QChar upper = key.toUpper();
  const bool first_exponent =
      Before(field) != u'-' && !CoversAll(field) && !field.text.contains('E', Qt::CaseInsensitive);
  if (upper == u'E' && first_exponent) return upper;
  if (key == u'-' && Before(field).toUpper() == u'E') return key;
  return kSwallowed;
}

QChar IntegerKeyFilter(QChar key, const FieldState& field, bool allow_negative) {
  if (IsDigit(key) || key == kBackspace) return key;
  if (key == u'-' && allow_negative && LeadingMinusPasses(field)) return key;
  return kSwallowed;
}

}  // namespace velmar::shell
