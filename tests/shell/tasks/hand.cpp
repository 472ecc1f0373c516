#include "tests/shell/tasks/hand.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

namespace velmar::shell {
namespace {

constexpr int kLookMs = 5;
constexpr int kNotch = 120;
constexpr int kFocusMs = 1000;
constexpr int kHandMs = 50;

bool TakesKeys() { return QApplication::focusWidget() != nullptr; }

/// What takes the keys. Without a desktop nobody always gives the window its place back when a list or a menu
/// above it has closed; which of its fields then has the focus is its own affair.
QWidget& Focused() {
  if (!TakesKeys() && !QTest::qWaitFor(TakesKeys, kFocusMs)) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->isWindow() && window->windowType() == Qt::Window)
        window->activateWindow();
    }
  }
  if (!QTest::qWaitFor(TakesKeys, kFocusMs)) qFatal("a key, and nothing that takes it");
  return *QApplication::focusWidget();
}

/// Clicks the entry `name` of the menu that is open. @return whether one is
bool ClickInMenu(const QString& name) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) return false;
  for (QAction* action : menu->actions()) {
    if (action->objectName() != name) continue;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    return true;
  }
  qFatal("no entry %s in the menu", qPrintable(name));
}

}  // namespace

void Hand::Click(QWidget* widget) {
  if (!widget->isVisible() || !widget->isEnabled())
    qFatal("nothing to click at: %s", qPrintable(widget->objectName()));
  // A click brings its window to the front first: a field selects its text only when it gets the focus by it.
  if (!widget->window()->isActiveWindow()) GoBackTo(*widget->window());
  // The line of a tick box may be longer than its words: who clicks aims at the box.
  const bool tick = qobject_cast<QCheckBox*>(widget) != nullptr;
  const QPoint at = tick ? QPoint(widget->height() / 2, widget->height() / 2) : widget->rect().center();
  QTest::mouseClick(widget, Qt::LeftButton, {}, at);
  ++count_;
  // What a field does when all else is done, such as selecting its text, comes before the first key of a
  // hand.
  QTest::qWait(kHandMs);
}

void Hand::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  ++count_;
  QTest::keyClick(&Focused(), key, modifiers);
  QApplication::processEvents();
}

void Hand::Turn(QWidget* widget, int notches) {
  const QPointF place = widget->rect().center();
  QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, notches * kNotch}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &wheel);
  ++count_;
}

void Hand::Enter(const QString& text, Qt::Key leave) {
  ++count_;
  letters_ += static_cast<int>(text.size());
  QTest::keyClicks(&Focused(), text);
  QTest::keyClick(&Focused(), leave);
  QApplication::processEvents();
}

void Hand::Choose(QWidget* button, const QString& action) {
  bool chosen = false;
  QTimer look;
  // An open menu may hold up whoever opened it, and its entry a window that waits for an answer.
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    if (chosen) return;
    if (qobject_cast<QMenu*>(QApplication::activePopupWidget()) == nullptr) return;
    chosen = true;
    ++count_;
    ClickInMenu(action);
  });
  look.start(kLookMs);
  const QPointer<QWidget> window = button->window();
  Click(button);
  while (!chosen) QTest::qWait(kLookMs);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  if (window && QApplication::activeModalWidget() == nullptr) GoBackTo(*window);
}

void Hand::GoBackTo(QWidget& window) {
  window.activateWindow();
  const auto back = [&window] { return window.isActiveWindow(); };
  // Without a desktop the word of it gets lost now and then.
  if (!QTest::qWaitFor(back, kFocusMs)) QApplication::setActiveWindow(&window);
  if (!QTest::qWaitFor(back, kFocusMs)) qFatal("no active window");
}

void Hand::WhenAsked(const std::function<void(QWidget& dialog)>& act) {
  auto* look = new QTimer(qApp);
  QObject::connect(look, &QTimer::timeout, look, [look, act] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || !dialog->isActiveWindow()) return;
    look->stop();
    look->deleteLater();
    act(*dialog);
  });
  look->start(kLookMs);
}

}  // namespace velmar::shell
