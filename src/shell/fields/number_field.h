#pragma once

#include <QLineEdit>
#include <string>

#include "shell/fields/corrections.h"

namespace velmar::shell {

/// What a number field takes.
enum class NumberKind {
  kReal,
  kInteger,
  kTerm,  ///< a real number that may be negative: an adaptation term
  kArea,  ///< a real number, or "-" alone for a small element
};

/// A text field for a number of the set-up. It shows what the set-up holds, reports each edit, and lets only
/// keys of numbers through; comma and point both type the decimal sign, which is the comma. Enter goes to the
/// next field. While someone types, a text that means the number of the set-up is left as it is typed; an
/// unfinished one ("1E") stays until the field is left and then gives way to the number before it. A pasted
/// number may bring blanks and a unit along.
class NumberField : public QLineEdit {
  Q_OBJECT

 public:
  NumberField(const QString& object_name, NumberKind kind, QWidget* parent = nullptr);

  /// Shows `text` of the set-up.
  void Show(const std::string& text);

  /// From now on numbers with more than `decimals` decimals are shown rounded; the set-up keeps all of them
  /// until the field is typed in.
  void ShowDecimals(int decimals) { decimals_ = decimals; }

  /// From now on keys and texts are checked as `kind`.
  void SetKind(NumberKind kind);

 public slots:
  /// What leaving the field does, while it keeps the focus: before a run, or before the project is saved.
  void Settle();

 signals:
  /// Keys or a paste changed the text.
  void Edited(const std::string& text);
  /// The field is left after it was edited: rules that correct an entry act now.
  void Left();
  /// The field itself made something else of an entry.
  void Corrected(velmar::shell::Correction correction, int limit);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool TypeKey(QChar key);
  void TakeEdit(const QString& text);

  NumberKind kind_;
  int decimals_ = -1;  ///< all of them
  QString shown_;      ///< the last text that was a number
  bool unfinished_ = false;
  bool edited_ = false;  ///< since the field was last left
};

/// Gives the focus to the first field of `page` that takes an entry; nothing happens when it has none.
void FocusFirstField(QWidget* page);

/// Gives the focus to the next field that takes an entry, as Enter does; buttons are passed over.
void FocusNextField(QWidget* from);

}  // namespace velmar::shell
