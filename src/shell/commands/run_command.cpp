#include "shell/commands/run_command.h"

#include <QApplication>
#include <QCursor>
#include <QGuiApplication>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/commands/refused_field.h"
#include "shell/fields/phrases.h"
#include "shell/fields/reveal.h"

namespace velmar::shell {
namespace {

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

/// In a list of checks a line begins with a dash.
QString WordsOf(const WindowServices& services, const MessageLine& reason) {
  QString words = Text(services.words, reason);
  if (words.startsWith("- ")) words.remove(0, 2);
  if (!words.isEmpty()) words.replace(0, 1, words.at(0).toUpper());
  return words;
}

}  // namespace

void RunOpenCalculation(const WindowServices& services, const QWidget& window) {
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
    return;
  }
  // The outcome lists the questions too; they were answered already.
  for (const Message& message : outcome.messages) {
    if (std::find(asked.begin(), asked.end(), message) == asked.end())
      services.boxes.tell(Tone::kCritical, Text(services.words, message));
  }
  if (outcome.refusal)
    PointAt(window, ControlOf(outcome.refusal->field), WordsOf(services, outcome.refusal->reason));
}

}  // namespace velmar::shell
