#include "shell/run_command.h"

#include <QCursor>
#include <QGuiApplication>
#include <algorithm>

#include "shell/phrases.h"

namespace velmar::shell {
namespace {

constexpr MessageRow kUnexpectedRow{1023};

class BusyPointer {
 public:
  BusyPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
};

class ArrowPointer {
 public:
  ArrowPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::ArrowCursor)); }
  ~ArrowPointer() { QGuiApplication::restoreOverrideCursor(); }
  ArrowPointer(const ArrowPointer&) = delete;
  ArrowPointer& operator=(const ArrowPointer&) = delete;
};

}  // namespace

bool RunOpenCalculation(const WindowServices& services) {
  std::vector<Message> asked;
  calculation::RunOutcome outcome;
  try {
    const BusyPointer busy;
    outcome = services.open.Run([&](const Message& question) {
      const ArrowPointer arrow;
      asked.push_back(question);
      return services.boxes.ask(Text(services.words, question));
    });
  } catch (const std::exception& failure) {
    services.open.DropResult();
    services.boxes.tell(Tone::kCritical, Text(services.words, kUnexpectedRow) + '\n' + failure.what());
    return false;
  }
  // The outcome lists the questions too; they were answered already.
  for (const Message& message : outcome.messages) {
    if (std::find(asked.begin(), asked.end(), message) == asked.end())
      services.boxes.tell(Tone::kCritical, Text(services.words, message));
  }
  return outcome.status == calculation::RunStatus::kDone;
}

}  // namespace velmar::shell
