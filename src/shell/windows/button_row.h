#pragma once

#include <QWidget>
#include <functional>

class QHBoxLayout;
class QPushButton;

namespace velmar::shell {

/// The buttons at the foot of a window, from left to right. None of them is pressed by Enter in another field
/// unless the window makes it the default.
class ButtonRow : public QWidget {
 public:
  explicit ButtonRow(QWidget* parent = nullptr);

  /// Adds a button that does `action`; it belongs to the row.
  QPushButton* Add(const char* object_name, const QString& text, std::function<void()> action);
  /// What follows stands at the right end.
  void AddStretch();

 private:
  QHBoxLayout* row_ = nullptr;
};

}  // namespace velmar::shell
