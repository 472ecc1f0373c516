#include "shell/start/desktop_application.h"

#include <QEvent>
#include <QMetaMethod>
#include <exception>

namespace velmar::shell {
namespace {

/// Whether an event of this kind is of the user's own doing.
bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::Drop:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool DesktopApplication::notify(QObject* receiver, QEvent* event) {
  // The event may be gone when it is asked about: a handler may delete its receiver.
  const QEvent kind(event->type());
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    if (!isSignalConnected(QMetaMethod::fromSignal(&DesktopApplication::Failed))) throw;
    Tell(QString::fromUtf8(failure.what()), kind);
  } catch (...) {
    if (!isSignalConnected(QMetaMethod::fromSignal(&DesktopApplication::Failed))) throw;
    Tell({}, kind);
  }
  return true;
}

void DesktopApplication::Tell(const QString& what, const QEvent& event) {
  if (telling_) return;  // a box of its own over the first would never end
  if (!IsInput(event.type())) {
    if (told_.contains(what)) return;
    told_.insert(what);
  }
  telling_ = true;
  try {
    emit Failed(what);
  } catch (...) {
    // Nothing more can be said; the program goes on with what it holds.
  }
  telling_ = false;
}

}  // namespace velmar::shell
