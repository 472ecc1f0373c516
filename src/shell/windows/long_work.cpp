#include "shell/windows/long_work.h"

#include <QCursor>
#include <QGuiApplication>
#include <chrono>
#include <future>

namespace velmar::shell {
namespace {

using Clock = std::chrono::steady_clock;

/// How long a job may take before it is said that it does.
constexpr std::chrono::milliseconds kPatience{300};
constexpr std::chrono::milliseconds kRepaintEvery{20};

/// The busy pointer, once it is shown, until the work is done.
class BusyPointer {
 public:
  BusyPointer() = default;
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() {
    if (shown_) QGuiApplication::restoreOverrideCursor();
  }
  void Show() {
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    shown_ = true;
  }

 private:
  bool shown_ = false;
};

}  // namespace

void RunBeside(const std::function<void()>& job, const std::function<void()>& say) {
  BusyPointer pointer;
  std::future<void> done = std::async(std::launch::async, job);
  bool said = false;
  for (const Clock::time_point start = Clock::now();
       done.wait_for(kRepaintEvery) != std::future_status::ready;) {
    if (!said && Clock::now() - start > kPatience) {
      if (say) {
        say();
      } else {
        pointer.Show();
      }
      said = true;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  done.get();
}

}  // namespace velmar::shell
