#include "tests/shell/every_window/every_window_user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>

#include "tests/shell/support/typed_texts.h"

namespace velmar::shell {
namespace {

constexpr int kActionsInACommand = 8;
constexpr int kTickMs = 2;
/// Ticks without an action before a program that does nothing is said to hang: two minutes.
constexpr int kPatience = 60'000;
/// Actions in one box before it is left.
constexpr int kActionsInADialog = 15;

/// Commands that end the program.
const QStringList kEnds = {"esci", "Button_23"};

QString NameOf(const QObject& object) {
  return object.objectName().isEmpty() ? QString(object.metaObject()->className()) : object.objectName();
}

QWidget* MainWindowOf() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "Form1" && widget->isVisible()) return widget;
  }
  return nullptr;
}

bool IsWindow(const QWidget& widget) {
  return widget.isVisible() && (widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog);
}

/// Whether `widget` stands for a command that ends the program.
bool Ends(const QWidget& widget) {
  if (kEnds.contains(widget.objectName())) return true;
  const auto* button = qobject_cast<const QToolButton*>(&widget);
  return button != nullptr && button->defaultAction() != nullptr &&
         kEnds.contains(button->defaultAction()->objectName());
}

/// Dialogs of the toolkit that reach a printer, or files beyond the folder of the test.
bool IsOfThePrinter(const QWidget& widget) {
  return widget.inherits("QAbstractPrintDialog") || widget.inherits("QPageSetupDialog");
}

}  // namespace

struct EveryWindowUser::Way {
  const char* name = "";
  void (EveryWindowUser::*act)(QWidget& window) = nullptr;
  int weight = 1;
};

const std::vector<EveryWindowUser::Way>& EveryWindowUser::Ways() {
  static const std::vector<Way> ways = {
      {"press", &EveryWindowUser::Press, 8},
      {"type", &EveryWindowUser::TypeInto, 5},
      {"choose in a list", &EveryWindowUser::ChooseInList, 2},
      {"choose a row", &EveryWindowUser::ChooseRow, 6},
      {"change the tab", &EveryWindowUser::ChangeTab, 1},
      {"press a key", &EveryWindowUser::PressKey, 3},
      {"open a context menu", &EveryWindowUser::OpenContextMenu, 1},
      {"click", &EveryWindowUser::ClickInto, 2},
      {"resize", &EveryWindowUser::Resize, 1},
      {"trigger", &EveryWindowUser::TriggerAny, 3},
      {"leave", &EveryWindowUser::Leave, 1},
  };
  return ways;
}

EveryWindowUser::EveryWindowUser(std::mt19937::result_type seed, QString folder)
    : random_(seed), folder_(std::move(folder)) {
  for (const char* scheme : {"file", "http", "https", "mailto"})
    QDesktopServices::setUrlHandler(scheme, this, "TakeAddress");
  connect(&timer_, &QTimer::timeout, this, &EveryWindowUser::Tick);
}

void EveryWindowUser::Begin(int steps) {
  steps_ = steps;
  timer_.start(kTickMs);
}

void EveryWindowUser::TakeAddress(const QUrl& address) { last = "open " + address.toString(); }

/// An action is under way that shows nothing to act in: nothing is done until it ends.
bool EveryWindowUser::IsBusy() const {
  if (within_.empty() || QApplication::activePopupWidget() != nullptr) return false;
  return QApplication::activeModalWidget() == within_.back().data();
}

void EveryWindowUser::Tick() {
  if (pending_ || IsBusy() || (!began_ && MainWindowOf() == nullptr && !QApplication::activeModalWidget())) {
    if (++idle_ > kPatience) qFatal("nothing happens any more after: %s", qPrintable(last));
    return;
  }
  idle_ = 0;
  pending_ = true;
  // Not from here: a timer does not go on while it is answered, and a box may come.
  QTimer::singleShot(0, this, [this] {
    pending_ = false;
    within_.emplace_back(QApplication::activeModalWidget());
    Act();
    within_.pop_back();
  });
}

void EveryWindowUser::Act() {
  if (QWidget* popup = QApplication::activePopupWidget()) return ChooseFromMenu(*popup);
  if (QWidget* modal = QApplication::activeModalWidget()) {
    auto* dialog = qobject_cast<QDialog*>(modal);
    if (dialog != nullptr && WasLeft(*dialog)) return;
    return ActIn(*modal);
  }
  QWidget* window = MainWindowOf();
  if (window == nullptr) return;
  if (!began_) {
    began_ = true;
    for (const QAction* action : window->findChildren<QAction*>()) {
      if (!action->objectName().isEmpty() && !kEnds.contains(action->objectName()) &&
          action->menu() == nullptr)
        commands_.push_back(action->objectName());
    }
  }
  if (!commands_.empty() && in_command_-- <= 0) return NextCommand();
  if (commands_.empty() && steps_-- <= 0) return Finish();
  ActIn(*Place());
}

/// The next command in the table, with what most of them need: a result.
void EveryWindowUser::NextCommand() {
  LeaveOthers();
  if (QApplication::activeModalWidget() != nullptr || MainWindowOf() == nullptr) return;
  const QString command = commands_.front();
  commands_.pop_front();
  in_command_ = kActionsInACommand;
  if (!MainWindowOf()->findChild<QAction*>("Salva_Progetto")->isEnabled()) Trigger("TIPO_PARETE_SINGOLA_0");
  if (!MainWindowOf()->findChild<QAction*>("esp_excel")->isEnabled()) Trigger("esegui_calcolo");
  Trigger(command);
}

void EveryWindowUser::LeaveOthers() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (IsWindow(*widget) && widget != MainWindowOf()) widget->close();
  }
}

void EveryWindowUser::Trigger(const QString& command) {
  last = "command " + command;
  QWidget* window = MainWindowOf();
  auto* action = window == nullptr ? nullptr : window->findChild<QAction*>(command);
  if (action != nullptr && action->isEnabled()) action->trigger();
}

/// Where to act: half the time in one of the windows beside the main one, where there are any.
QWidget* EveryWindowUser::Place() {
  QList<QWidget*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (IsWindow(*widget) && widget != MainWindowOf()) windows += widget;
  }
  return windows.isEmpty() || Pick(3) == 0 ? MainWindowOf() : windows.at(Pick(windows.size()));
}

/// Boxes that are answered at once, and dialogs that were long enough on the screen.
bool EveryWindowUser::WasLeft(QDialog& dialog) {
  if (qobject_cast<QMessageBox*>(&dialog) != nullptr) {
    Answer(dialog);
    return true;
  }
  if (qobject_cast<QFileDialog*>(&dialog) != nullptr) {
    ChooseFile(dialog);
    return true;
  }
  const int done = dialog.property("done").toInt() + 1;
  dialog.setProperty("done", done);
  if (!IsOfThePrinter(dialog) && done <= kActionsInADialog && steps_ > 0) return false;
  last = "leave " + NameOf(dialog);
  opened[NameOf(dialog)] += 1;
  if (done > 2 * kActionsInADialog) {
    faults += NameOf(dialog) + " does not close";
    dialog.done(QDialog::Rejected);
  } else {
    dialog.close();
  }
  return true;
}

void EveryWindowUser::Answer(QWidget& widget) {
  auto& box = static_cast<QMessageBox&>(widget);
  if (box.text().contains("errore imprevisto")) faults += "after \"" + last + "\": " + box.text();
  opened["QMessageBox"] += 1;
  QList<QAbstractButton*> buttons = box.buttons();
  if (buttons.isEmpty()) {
    box.close();
    return;
  }
  QAbstractButton* button = buttons.at(Pick(buttons.size()));
  // At the end nobody wants to stay.
  for (QAbstractButton* other : buttons) {
    if (steps_ <= 0 && box.buttonRole(other) == QMessageBox::NoRole) button = other;
  }
  button->click();
}

/// A file of the test's own folder: one that is there, or a new one.
void EveryWindowUser::ChooseFile(QDialog& dialog) {
  opened["QFileDialog"] += 1;
  auto& files = static_cast<QFileDialog&>(dialog);
  const QStringList there = QDir(folder_).entryList(QDir::Files);
  QString name = "nuovo " + QString::number(++files_);
  if (!there.isEmpty() && (files.acceptMode() == QFileDialog::AcceptOpen || Pick(4) == 0))
    name = there.at(Pick(there.size()));
  files.setDirectory(folder_);
  files.selectFile(QDir(folder_).filePath(name));
  last = "choose " + name;
  if (Pick(4) == 0 || steps_ <= 0) {
    dialog.reject();
  } else {
    dialog.accept();
    // A name that the dialog refuses.
    if (dialog.isVisible() && QApplication::activeModalWidget() == &dialog) dialog.reject();
  }
}

void EveryWindowUser::ChooseFromMenu(QWidget& popup) {
  auto* menu = qobject_cast<QMenu*>(&popup);
  QList<QAction*> entries;
  if (menu != nullptr) {
    for (QAction* action : menu->actions()) {
      if (action->isEnabled() && action->isVisible() && !action->isSeparator() && action->menu() == nullptr &&
          !kEnds.contains(action->objectName()))
        entries += action;
    }
  }
  if (entries.isEmpty() || Pick(4) == 0) {
    popup.close();
    return;
  }
  QAction* entry = entries.at(Pick(entries.size()));
  last = "entry " + entry->text();
  popup.close();
  entry->trigger();
}

void EveryWindowUser::ActIn(QWidget& window) {
  const QString name = NameOf(window);
  opened[name] += 1;
  int all = 0;
  for (const Way& way : Ways()) all += way.weight;
  int place = Pick(all);
  for (const Way& way : Ways()) {
    place -= way.weight;
    if (place >= 0) continue;
    last = name + ": " + way.name;
    return (this->*way.act)(window);
  }
}

void EveryWindowUser::Finish() {
  LeaveOthers();
  finished = true;
  last = "close the main window";
  if (QWidget* window = MainWindowOf()) window->close();
}

int EveryWindowUser::Pick(qsizetype count) {
  return static_cast<int>(random_() % static_cast<std::mt19937::result_type>(count));
}

template <typename Widget>
QList<Widget*> EveryWindowUser::Shown(QWidget& window) const {
  QList<Widget*> shown;
  for (auto* widget : window.findChildren<Widget*>()) {
    if (widget->isVisible() && widget->isEnabled() && widget->window() == &window) shown += widget;
  }
  return shown;
}

template <typename Widget>
Widget* EveryWindowUser::AnyShown(QWidget& window) {
  const QList<Widget*> shown = Shown<Widget>(window);
  return shown.isEmpty() ? nullptr : shown.at(Pick(shown.size()));
}

/// A button that was not pressed before, where there is one.
void EveryWindowUser::Press(QWidget& window) {
  QList<QAbstractButton*> buttons;
  QList<QAbstractButton*> unknown;
  for (auto* button : Shown<QAbstractButton>(window)) {
    if (Ends(*button)) continue;
    buttons += button;
    if (!known_.contains(NameOf(window) + '/' + NameOf(*button))) unknown += button;
  }
  if (buttons.isEmpty()) return;
  const QList<QAbstractButton*>& from = unknown.isEmpty() || Pick(4) == 0 ? buttons : unknown;
  QAbstractButton* button = from.at(Pick(from.size()));
  known_ += NameOf(window) + '/' + NameOf(*button);
  pressed = static_cast<int>(known_.size());
  last += ' ' + NameOf(*button);
  button->click();
}

void EveryWindowUser::TypeInto(QWidget& window) {
  const QString text = Pick(3) == 0 ? kGarbage.at(Pick(kGarbage.size())) : kNumbers.at(Pick(kNumbers.size()));
  if (Pick(6) == 0) {
    if (auto* field = AnyShown<QPlainTextEdit>(window)) return SendText(field, text);
    if (auto* field = AnyShown<QTextEdit>(window)) return SendText(field, text);
  }
  auto* field = AnyShown<QLineEdit>(window);
  if (field == nullptr) return;
  last += ' ' + NameOf(*field);
  field->setFocus();
  if (Pick(4) > 0) field->selectAll();
  SendText(field, text);
  if (Pick(4) == 0) QTest::keyClick(field, Qt::Key_Return);
}

void EveryWindowUser::ChooseInList(QWidget& window) {
  auto* list = AnyShown<QComboBox>(window);
  if (list == nullptr) return;
  last += ' ' + NameOf(*list);
  QTest::keyClick(list, std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End}.at(
                            static_cast<std::size_t>(Pick(4))));
}

void EveryWindowUser::ChooseRow(QWidget& window) {
  auto* view = AnyShown<QAbstractItemView>(window);
  if (view == nullptr || view->model() == nullptr) return;
  last += ' ' + NameOf(*view);
  QModelIndex place = view->rootIndex();
  // Down the tree, as deep as it goes or as one likes.
  for (int depth = 0; depth < 4 && view->model()->rowCount(place) > 0; ++depth) {
    if (auto* tree = qobject_cast<QTreeView*>(view); tree != nullptr && place.isValid()) tree->expand(place);
    place = view->model()->index(Pick(view->model()->rowCount(place)), 0, place);
    if (Pick(4) == 0) break;
  }
  if (!place.isValid()) return;
  view->scrollTo(place);
  const QPointer<QAbstractItemView> still = view;
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Pick(4) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                    view->visualRect(place).center());
  if (!still || !still->isVisible()) return;
  if (Pick(4) == 0)
    QTest::mouseDClick(still->viewport(), Qt::LeftButton, {},
                       still->visualRect(still->currentIndex()).center());
}

void EveryWindowUser::ChangeTab(QWidget& window) {
  auto* bar = AnyShown<QTabBar>(window);
  if (bar == nullptr || bar->count() == 0) return;
  const int tab = Pick(bar->count());
  if (bar->isTabVisible(tab)) QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
}

void EveryWindowUser::PressKey(QWidget& window) {
  static constexpr std::array kKeys = {Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Return,   Qt::Key_Space,
                                       Qt::Key_Home,   Qt::Key_End,       Qt::Key_PageUp,   Qt::Key_PageDown,
                                       Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left,     Qt::Key_Right,
                                       Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F2,       Qt::Key_F5,
                                       Qt::Key_F6,     Qt::Key_Insert,    Qt::Key_Asterisk, Qt::Key_Escape};
  QWidget* focus = window.focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &window, kKeys.at(static_cast<std::size_t>(Pick(kKeys.size()))),
                  Pick(6) == 0 ? Qt::ControlModifier : Qt::NoModifier);
}

void EveryWindowUser::OpenContextMenu(QWidget& window) {
  auto* widget = AnyShown<QWidget>(window);
  if (widget == nullptr) return;
  last += ' ' + NameOf(*widget);
  const QPoint place = widget->rect().center();
  QContextMenuEvent menu(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
  QApplication::sendEvent(widget, &menu);
}

void EveryWindowUser::ClickInto(QWidget& window) {
  auto* widget = AnyShown<QWidget>(window);
  if (widget == nullptr || widget->width() < 1 || widget->height() < 1) return;
  const QPoint place(Pick(widget->width()), Pick(widget->height()));
  const QWidget* hit = window.childAt(widget->mapTo(&window, place));
  if (hit == nullptr || Ends(*hit)) return;
  last += ' ' + NameOf(*hit);
  QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}

void EveryWindowUser::Resize(QWidget& window) { window.resize(300 + Pick(1400), 200 + Pick(900)); }

void EveryWindowUser::TriggerAny(QWidget& window) {
  QList<QAction*> actions;
  for (QAction* action : window.findChildren<QAction*>()) {
    if (action->isEnabled() && action->isVisible() && action->menu() == nullptr &&
        !kEnds.contains(action->objectName()) && !action->isSeparator())
      actions += action;
  }
  if (actions.isEmpty()) return;
  QAction* action = actions.at(Pick(actions.size()));
  last += ' ' + NameOf(*action);
  action->trigger();
}

void EveryWindowUser::Leave(QWidget& window) {
  if (&window != MainWindowOf()) window.close();
}

}  // namespace velmar::shell
