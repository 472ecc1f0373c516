#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <map>
#include <random>
#include <vector>

class QAbstractItemView;
class QAction;
class QDialog;
class QLineEdit;
class QUrl;
class QWidget;

namespace velmar::shell {

/// A user of the whole program who opens every window that a command opens, and in each presses, types,
/// chooses and closes whatever is there. Boxes are answered as they come. What has not been pressed yet goes
/// first.
class EveryWindowUser : public QObject {
  Q_OBJECT

 public:
  /// @param seed the same seed does the same things, as far as the system's clock lets it
  /// @param folder for the files that the dialogs ask for
  EveryWindowUser(std::mt19937::result_type seed, QString folder);

  /// Begins as soon as the main window stands, and closes it after all commands and `steps` actions more.
  void Begin(int steps);

  std::map<QString, int> opened;  ///< windows, by name or class, and what was done in each
  int pressed = 0;                ///< different buttons
  bool finished = false;          ///< all was done before the main window closed
  QStringList faults;             ///< what must never happen
  QString last;                   ///< what was done last, and where

 public slots:
  /// Takes what the program hands to the system to be opened.
  void TakeAddress(const QUrl& address);

 private:
  struct Way;
  static const std::vector<Way>& Ways();

  void Tick();
  void Act();
  void ActIn(QWidget& window);
  void Finish();
  bool IsBusy() const;

  void NextCommand();
  void LeaveOthers();
  void Trigger(const QString& command);
  QWidget* Place();
  bool WasLeft(QDialog& dialog);
  void Answer(QWidget& box);
  void ChooseFile(QDialog& dialog);
  void ChooseFromMenu(QWidget& menu);

  void Press(QWidget& window);
  void TypeInto(QWidget& window);
  void ChooseInList(QWidget& window);
  void ChooseRow(QWidget& window);
  void ChangeTab(QWidget& window);
  void PressKey(QWidget& window);
  void OpenContextMenu(QWidget& window);
  void ClickInto(QWidget& window);
  void Resize(QWidget& window);
  void TriggerAny(QWidget& window);
  void Leave(QWidget& window);

  int Pick(qsizetype count);
  template <typename Widget>
  QList<Widget*> Shown(QWidget& window) const;
  template <typename Widget>
  Widget* AnyShown(QWidget& window);

  std::mt19937 random_;
  QString folder_;
  QTimer timer_;
  std::deque<QString> commands_;
  QSet<QString> known_;                    ///< what was pressed
  std::vector<QPointer<QWidget>> within_;  ///< the modal windows in which actions are under way
  bool pending_ = false;
  bool began_ = false;
  int steps_ = 0;
  int in_command_ = 0;  ///< actions left before the next command
  int idle_ = 0;
  int files_ = 0;
};

}  // namespace velmar::shell
