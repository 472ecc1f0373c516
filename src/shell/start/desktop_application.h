#pragma once

#include <QApplication>
#include <QSet>

namespace velmar::shell {

/// The application of the window. What an event handler or a slot throws ends neither the program nor the
/// work in it: it is caught here and told to who listens.
class DesktopApplication : public QApplication {
  Q_OBJECT
 public:
  DesktopApplication(int& argc, char** argv) : QApplication(argc, argv) {}

  /// Without a listener the exception goes on, as in the time before there is a window.
  bool notify(QObject* receiver, QEvent* event) override;

 signals:
  /// Something was thrown. What the user did is told each time; a failure that comes back by itself, as while
  /// painting, once.
  /// @param what the exception's own words
  void Failed(const QString& what);

 private:
  void Tell(const QString& what, const QEvent& event);

  bool telling_ = false;
  QSet<QString> told_;
};

}  // namespace velmar::shell
