#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <thread>

#include "shell/start/desktop_application.h"
#include "shell/start/start_up.h"
#include "tests/shell/every_window/every_window_user.h"

namespace velmar::shell {
namespace {

namespace fs = std::filesystem;

constexpr int kSteps = 500;
/// More than the slowest machine needs for one action: a window that takes no event for so long hangs.
constexpr std::chrono::seconds kPatience{120};

/// Ends the program, with what was done last, when the events are not seen to for long.
class HangGuard {
 public:
  explicit HangGuard(const EveryWindowUser& user) {
    QObject::connect(&beat_, &QTimer::timeout, &beat_, [this, &user] {
      const std::lock_guard lock(mutex_);
      seen_ = true;
      last_ = user.last.toStdString();
    });
    beat_.start(100);
    thread_ = std::jthread([this](const std::stop_token& stop) { Watch(stop); });
  }

 private:
  void Watch(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (!wake_.wait_for(lock, stop, kPatience, [] { return false; }) && !stop.stop_requested()) {
      if (!seen_) qFatal("the window hangs after: %s", last_.c_str());
      seen_ = false;
    }
  }

  QTimer beat_;
  std::mutex mutex_;
  std::condition_variable_any wake_;
  bool seen_ = false;
  std::string last_;
  std::jthread thread_;
};

int FromEnvironment(const char* name, int otherwise) {
  bool given = false;
  const int value = qEnvironmentVariableIntValue(name, &given);
  return given ? value : otherwise;
}

}  // namespace

/// Every window of the real program, started as the user starts it. `VELMAR_WALK_STEPS` and
/// `VELMAR_WALK_SEED` make it longer, or another one.
class EveryWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void standsWhateverIsDoneInIt() {
    QLoggingCategory::setFilterRules("*.warning=false");
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) qputenv(name, home.path().toUtf8());
    qputenv("CUPS_SERVER", home.filePath("none").toUtf8());  // no paper is wasted
    const QString files = home.filePath("file");
    fs::copy(EXAMPLES, files.toStdString());
    fs::current_path(files.toStdString());

    EveryWindowUser user(static_cast<unsigned>(FromEnvironment("VELMAR_WALK_SEED", 20261122)), files);
    user.Begin(FromEnvironment("VELMAR_WALK_STEPS", kSteps));
    int code = -1;
    {
      const HangGuard guard(user);
      code = RunDesktop(static_cast<DesktopApplication&>(*qApp));
    }
    for (const auto& [window, count] : user.opened) qInfo("%6d %s", count, qPrintable(window));
    qInfo("%d buttons", user.pressed);
    fs::current_path("/");
    QCOMPARE(user.faults, QStringList());
    QCOMPARE(code, 0);
    QVERIFY2(user.finished, qPrintable("ended by: " + user.last));
    for (const char* window : kWindows) QVERIFY2(user.opened.count(window) > 0, window);
  }

 private:
  /// What the commands open; others open out of these, as chance will have it.
  static constexpr std::array kWindows = {"Form1",        "Form2",      "Form3",       "Form7",
                                          "Form9",        "Form11",     "Form12",      "FormSceltaMateriali",
                                          "About_VELMAR", "FormMisura", "QFileDialog", "QMessageBox"};
};

}  // namespace velmar::shell

int main(int argc, char** argv) {
  velmar::shell::DesktopApplication application(argc, argv);
  velmar::shell::EveryWindowTest test;
  return QTest::qExec(&test, argc, argv);
}
#include "every_window_test.moc"
