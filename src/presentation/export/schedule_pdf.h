#pragma once

#include <string>
#include <vector>

#include "presentation/drawing/printed_page.h"
#include "presentation/drawing/section.h"
#include "presentation/schedule/schedule.h"

namespace velmar::presentation {

/// A chapter of a report of several: the printed page of one project.
struct PageChapter {
  std::string heading{};
  PaginaDiStampa page{};
  Section section{};  ///< for the table of elements
};

/// A PDF file of A4 pages: cover, contents, table of the elements (on its side), then the pages of
/// `chapters`, numbered through, with bookmarks. A QGuiApplication must exist.
/// @param chapters one for every element of `schedule` that has a result, in their order
std::string SchedulePdf(const Schedule& schedule, const std::vector<PageChapter>& chapters,
                        const Words& words);

}  // namespace velmar::presentation
