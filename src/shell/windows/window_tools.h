#pragma once

#include <QString>
#include <functional>

#include "foundation/failure.h"
#include "presentation/texts/words.h"

class QHeaderView;
class QSettings;
class QSplitter;
class QWidget;

namespace velmar::shell {

/// What every window here is given. The boxes are passed in, so that a test answers them without one opening.
struct WindowTools {
  presentation::Words words{};
  std::function<bool(const QString& question)> ask{};
  std::function<void(const QString& text)> tell{};  ///< a critical box
  QSettings* memory = nullptr;                      ///< sizes and column widths; none: nothing is remembered

  /// The words of `row`.
  QString Text(MessageRow row) const;
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

/// UTF-8 to Qt and back.
QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

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
