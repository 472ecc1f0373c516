#pragma once

#include <QString>
#include <filesystem>
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
  /// `file` was written: `text` and where it is, and on request the file or its folder is opened. Nobody has
  /// to answer.
  std::function<void(const QString& text, const std::filesystem::path& file)> tell_written;
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

/// Asks for a file to write. A name that is typed without `ending`, in letters of either case, gets it; where
/// that meets a file that is there already the user is asked, because the dialog asked about what was typed.
/// @param ending with its point
/// @return nothing when the user cancels or wants the file that is there to stay
std::optional<std::filesystem::path> AskFileToSave(const Speech& speech, const FileQuestion& question,
                                                   const QString& ending);

/// The boxes of the screen, in the words of the catalogue, above the active window.
Boxes ScreenBoxes(const presentation::Words& words);

}  // namespace velmar::shell
