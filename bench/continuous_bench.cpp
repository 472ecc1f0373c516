// What a hand waits for while each change is calculated at once: thousands of edits in an open window, each
// drawn. The longest wait is told, not only the mean.
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <array>
#include <ctime>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "tests/shell/support/window_fixture.h"

namespace velmar::shell {
namespace {

constexpr int kEdits = 10'000;
constexpr double kWantedMs = 50.0;

/// An example and the field that is stepped up and down in it.
struct Work {
  const char* example = "";
  const char* field = "";
};
constexpr std::array kWorks = {
    Work{"parete-forato-intonacata", "Text5_1"}, Work{"doppia-forati-lana", "Text5_1"},
    Work{"sea-laterizio-doppia", "TextSpessoreMatSEA1_0"}, Work{"calpestio-galleggiante", "Text5_0"},
    Work{"controplaccaggio-calibel", "TextSpessoreMatSEA2_0"}};

/// What this thread has computed so far, without what it waited for other programs.
double ThreadMs() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// One window, one kind of element: Up and Down in turn, so that the thickness stays about what it was.
void Step(benchmark::State& state, const Work& work) {
  WindowFixture fixture;
  fixture.window->resize(1366, 768);
  fixture.window->show();
  fixture.window->OpenProject(std::string(EXAMPLES) + '/' + work.example + ".drav");
  fixture.Find<QAction>("calcolo_continuo")->trigger();
  auto* field = fixture.Find<QLineEdit>(work.field);
  std::vector<double> waits_ms;
  double longest_work_ms = 0.0;
  bool up = false;
  for (auto _ : state) {
    up = !up;
    QElapsedTimer clock;
    clock.start();
    const double worked = ThreadMs();
    QTest::keyClick(field, up ? Qt::Key_Up : Qt::Key_Down);
    QApplication::processEvents();
    waits_ms.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
    longest_work_ms = std::max(longest_work_ms, ThreadMs() - worked);
  }
  std::ranges::sort(waits_ms);
  state.counters["longest_ms"] = waits_ms.back();
  state.counters["longest_work_ms"] = longest_work_ms;
  state.counters["p50_ms"] = waits_ms[waits_ms.size() / 2];
  state.counters["p99_ms"] = waits_ms[waits_ms.size() * 99 / 100];
  state.counters["over_50_ms"] =
      static_cast<double>(std::ranges::count_if(waits_ms, [](double wait) { return wait > kWantedMs; }));
  state.counters["with_result"] = fixture.open.Result() ? 1.0 : 0.0;
}

}  // namespace
}  // namespace velmar::shell

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  using namespace velmar::shell;
  for (const Work& work : kWorks) {
    benchmark::RegisterBenchmark(work.example, [&work](benchmark::State& state) { Step(state, work); })
        ->Iterations(kEdits / static_cast<int>(kWorks.size()))
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
