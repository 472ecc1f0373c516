#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/schedule/schedule.h"

namespace velmar::presentation {

/// The file name of the Word template around the chapters.
inline constexpr std::string_view kScheduleTemplateName = "Template_abaco_drav.docx";

/// A chapter of a report of several: a finished report.
struct WordChapter {
  std::string heading{};
  std::string docx{};
};

/// Fills the Word template `docx` with cover and table of `schedule` and puts `chapters` behind it: one
/// document, each chapter on pages of its own with its header and footer.
/// @throws TemplateFailure when a template cannot be used
std::string WriteWordSchedule(std::string_view docx, const Schedule& schedule,
                              const std::vector<WordChapter>& chapters, const Words& words);

/// Every placeholder that the template around the chapters may hold.
std::set<std::string> SchedulePlaceholders();

}  // namespace velmar::presentation
