#pragma once

#include <QLineEdit>
#include <functional>
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
/// next field. An edit that the set-up answers with another text (0 becomes 10) is shown at once; an
/// unfinished one ("1E") stays until the field is left.
class NumberField : public QLineEdit {
 public:
  NumberField(const QString& object_name, NumberKind kind, QWidget* parent = nullptr);

  void OnEdit(std::function<void(const std::string& text)> on_edit) { on_edit_ = std::move(on_edit); }
  /// `on_leave` is called when the field loses the focus, before it shows the set-up's text again.
  void OnLeave(std::function<void()> on_leave) { on_leave_ = std::move(on_leave); }

  /// `on_correction` is told of what the field or the set-up made of an entry.
  void ReportCorrections(OnCorrection on_correction) { on_correction_ = std::move(on_correction); }

  /// Shows `text` of the set-up.
  void Show(const std::string& text);

  /// Half a number ("1E") gives way to the number before it, as when the field is left.
  void Settle();

  /// From now on keys and texts are checked as `kind`.
  void SetKind(NumberKind kind);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool TypeKey(QChar key);
  void TakeEdit(const QString& text);

  NumberKind kind_;
  QString shown_;
  bool unfinished_ = false;
  std::function<void(const std::string&)> on_edit_;
  std::function<void()> on_leave_;
  OnCorrection on_correction_;
};

/// Gives the focus to the next field that takes an entry, as Enter does; buttons are passed over.
void FocusNextField(QWidget* from);

}  // namespace velmar::shell
