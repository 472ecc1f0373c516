#pragma once

#include <QString>

#include "foundation/failure.h"
#include "presentation/texts/words.h"
#include "shell/windows/boxes.h"

class QHeaderView;
class QSettings;
class QSplitter;
class QWidget;

namespace velmar::shell {

/// What every window here is given: how it speaks, and what it remembers.
struct WindowTools : Speech {
  QSettings* memory = nullptr;  ///< sizes and column widths; none: nothing is remembered

  bool Ask(const QString& question) const { return boxes.ask(question); }
  /// Tells what is wrong.
  void Tell(const QString& text) const { boxes.tell(Tone::kCritical, text); }
  /// The words of `row`.
  QString Text(MessageRow row) const;
  /// The lines of a box, joined with line breaks.
  QString Text(const Message& message) const;
  /// What `failure` says to the user, line by line.
  void Tell(const Failure& failure) const;

  /// Runs `work`; a failure is told and leaves `work` undone.
  template <typename Work>
  bool Try(Work&& work) const {
    try {
      work();
      return true;
    } catch (const Failure& failure) {
      Tell(failure);
      return false;
    }
  }
};

/// The pieces of a window whose sizes are remembered under `name`; any but the window may be null.
struct RememberedSizes {
  QString name{};
  QWidget* window = nullptr;
  QHeaderView* columns = nullptr;
  QSplitter* splitter = nullptr;
};

/// @return whether sizes were remembered
bool RestoreSizes(const QSettings* memory, const RememberedSizes& sizes);
void SaveSizes(QSettings* memory, const RememberedSizes& sizes);

}  // namespace velmar::shell
