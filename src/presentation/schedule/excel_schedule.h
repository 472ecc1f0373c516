#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "presentation/reports/report_record.h"
#include "presentation/schedule/schedule.h"

namespace velmar::presentation {

/// A chapter of a workbook of several projects: what the report of one shows.
struct ExcelChapter {
  std::string name{};  ///< of its sheet
  ReportRecord record{};
};

/// Fills the Excel template `xlsx` once for every chapter, each on sheets of its own, behind a sheet with the
/// cover's lines and the table of the elements, from which links lead to theirs.
/// @param chapters one for every element of `schedule` that has a result, in their order
/// @throws TemplateFailure when the template cannot be used
std::string WriteExcelSchedule(std::string_view xlsx, const Schedule& schedule,
                               std::vector<ExcelChapter> chapters, const Words& words);

}  // namespace velmar::presentation
