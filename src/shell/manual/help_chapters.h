#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "elements/catalogue.h"

class QWidget;

namespace velmar::shell {

/// A window, or a part of one, and the chapter of the manual that is about it.
struct HelpChapter {
  std::string_view control{};  ///< name of the window or part
  std::string_view anchor{};   ///< of the chapter or section
};

/// Every window but the main one, and the parts of windows that have a section of their own.
std::span<const HelpChapter> HelpChapters();

/// The chapter on elements like that of `calculation`.
std::string_view ChapterOf(elements::Calculation calculation);

/// Where the manual begins.
inline constexpr std::string_view kFirstChapter = "per-cominciare";

/// The chapter for a user whose cursor stands in `focus`: of the innermost part that has one, else of the
/// element that is open, else the first.
std::string_view ChapterFor(const QWidget* focus, std::optional<elements::Calculation> calculation);

}  // namespace velmar::shell
