#include "shell/commands/run_command.h"

#include <QCursor>
#include <QGuiApplication>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/fields/reveal.h"
#include "shell/page_parts/page_context.h"
#include "shell/windows/phrases.h"

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
QString WordsOf(const presentation::Words& catalogue, const MessageLine& reason) {
  QString words = Text(catalogue, reason);
  if (words.startsWith("- ")) words.remove(0, 2);
  if (!words.isEmpty()) words.replace(0, 1, words.at(0).toUpper());
  return words;
}

}  // namespace

void RunOpenCalculation(const Desk& desk) {
  const Boxes& boxes = desk.speech.boxes;
  const presentation::Words& words = desk.speech.words;
  std::vector<Message> asked;
  calculation::RunOutcome outcome;
  try {
    const BusyPointer busy;
    outcome = desk.open.Run([&](const Message& question) {
      const ArrowPointer arrow;
      asked.push_back(question);
      return boxes.ask(Text(words, question));
    });
  } catch (const std::exception& failure) {
    desk.open.DropResult();
    boxes.tell(Tone::kCritical, Text(words, kUnexpectedRow) + '\n' + failure.what());
    return;
  }
  // The outcome lists the questions too; they were answered already.
  for (const Message& message : outcome.messages) {
    if (std::find(asked.begin(), asked.end(), message) == asked.end())
      boxes.tell(Tone::kCritical, Text(words, message));
  }
  if (!outcome.refusal) return;
  if (QWidget* field = desk.pages.ControlOf(outcome.refusal->field))
    PointAt(field, WordsOf(words, outcome.refusal->reason));
}

}  // namespace velmar::shell
