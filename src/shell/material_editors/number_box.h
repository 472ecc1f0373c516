#pragma once

#include <QLineEdit>
#include <string>

namespace velmar::material_editors {

/// A box for a number of a material. Only keys of numbers pass; comma and point both type the decimal sign,
/// which is the comma. A paste may bring anything: the checks of saving speak about it.
class NumberBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit NumberBox(const QString& object_name, QWidget* parent = nullptr);

  /// Shows `text` as it stands.
  void Show(const std::string& text);
  /// Shows a stored number. A long one is rounded for the eye; Number() gives it unrounded until it is typed
  /// over.
  void ShowStored(const std::string& number);
  /// The text, without blanks around it.
  std::string Number() const;
  /// Shows `result` where there is room for it: in an empty box, or over its text when `replace` says so.
  void Fill(const std::string& result, bool replace);

  /// Does what leaving the box does.
  void Leave();

 signals:
  /// The box was left. @param edited whether it was typed in since it was last left
  void Left(bool edited);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::string exact_;  ///< what the rounded text stands for; empty: the text is what it is
  bool edited_ = false;
};

}  // namespace velmar::material_editors
