#pragma once

#include <QString>
#include <Qt>
#include <functional>

class QWidget;

namespace velmar::shell {

/// A hand at mouse and keyboard that counts what it does. Counted as one are: a click, a key or a combination
/// of keys, and an entry, which is a text typed into the field that has the focus together with the key that
/// takes it and leads on (Enter or Tab): its letters are what the consultant has to say, and no window can
/// spare them. A dialog of the system, which no test can open, is one for its Enter. Waiting is not counted.
class Hand {
 public:
  void Click(QWidget* widget);
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// One notch of the wheel over `widget`.
  void Turn(QWidget* widget, int notches);
  /// Types `text` into what has the focus, and `leave` behind it.
  void Enter(const QString& text, Qt::Key leave = Qt::Key_Return);
  /// Opens the menu of `button` and clicks its entry `action`: two.
  void Choose(QWidget* button, const QString& action);
  /// What a dialog of the system is answered with.
  void Answer() { ++count_; }

  int Count() const { return count_; }
  /// How many letters the entries had.
  int Letters() const { return letters_; }

  /// What a desktop does with `window` when a menu or a dialog over it has closed.
  static void GoBackTo(QWidget& window);

  /// Calls `act` once a modal window is open over the one in which the hand acts next.
  static void WhenAsked(const std::function<void(QWidget& dialog)>& act);

 private:
  int count_ = 0;
  int letters_ = 0;
};

}  // namespace velmar::shell
