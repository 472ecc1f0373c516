#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "presentation/texts/words.h"

namespace velmar::shell {

/// Title of every box.
inline constexpr const char* kProductName = "VELMARpro";

enum class Tone { kInformation, kCritical };

/// What a file dialog is opened with.
struct FileQuestion {
  QString title{};
  QString filter{};
  QString start{};  ///< file or folder to begin at
};

/// What a name is asked for with.
struct NameQuestion {
  QString title{};
  QString prompt{};
  QString proposed{};
};

/// The modal boxes, passed in so that a test answers them without one opening.
struct Boxes {
  std::function<bool(const QString& question)> ask;
  /// Yes, no, or nothing for cancel.
  std::function<std::optional<bool>(const QString& question)> ask_or_cancel;
  std::function<void(Tone tone, const QString& text)> tell;
  /// An empty answer means that the user cancelled.
  std::function<QString(const FileQuestion&)> choose_file_to_open;
  std::function<QString(const FileQuestion&)> choose_file_to_save;
  /// An empty answer gives the matter up.
  std::function<QString(const NameQuestion&)> ask_name{};
};

/// How a window speaks: the words of the catalogue, and the boxes that say them.
struct Speech {
  presentation::Words words{};
  Boxes boxes{};
};

/// The boxes of the screen, in the words of the catalogue, above the active window.
Boxes ScreenBoxes(const presentation::Words& words);

}  // namespace velmar::shell
