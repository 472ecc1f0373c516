#include "shell/windows/docked.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDockWidget>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <algorithm>

namespace velmar::shell {
namespace {

/// Of the window that a dialog takes at first: what it serves keeps its room on a small screen.
constexpr double kShare = 0.28;

/// Closes with its dialog, and its dialog with it.
class Dock : public QDockWidget {
 public:
  Dock(QDialog* dialog, QWidget* window) : QDockWidget(dialog->windowTitle(), window), dialog_(dialog) {
    setObjectName("Accanto" + dialog->objectName());
    setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowFlags(Qt::Widget);
    setWidget(dialog);
    connect(dialog, &QDialog::finished, this, &QObject::deleteLater);
    connect(dialog, &QObject::destroyed, this, &QObject::deleteLater);
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (dialog_) dialog_->close();
    QDockWidget::closeEvent(event);
  }

 private:
  QPointer<QDialog> dialog_;
};

}  // namespace

void StandBeside(QDialog* dialog, QWidget* window, int width) {
  auto* main = qobject_cast<QMainWindow*>(window);
  if (main == nullptr) {
    dialog->show();
    return;
  }
  // Which it forgets on its way into the window.
  QWidget* first = dialog->focusWidget();
  const int width_before = main->width();
  auto* dock = new Dock(dialog, main);
  if (!main->restoreDockWidget(dock)) {
    main->addDockWidget(Qt::RightDockWidgetArea, dock);
    const int share = std::max(static_cast<int>(kShare * main->width()), dialog->minimumSizeHint().width());
    main->resizeDocks({dock}, {std::min(width, share)}, Qt::Horizontal);
  }
  dock->show();
  dialog->show();
  // What was shown before may still claim its room, and the window grow past its screen for it.
  QTimer::singleShot(0, main, [main, width_before] {
    if (main->width() > width_before) main->resize(width_before, main->height());
  });
  // As a window of its own would: the keys go where the dialog begins.
  if (first != nullptr) first->setFocus(Qt::OtherFocusReason);
}

}  // namespace velmar::shell
