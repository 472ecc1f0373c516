#pragma once

#include <string>
#include <string_view>

#include "presentation/documents/workbook.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {

/// The file name of the Excel template.
inline constexpr std::string_view kExcelTemplateName = "Formato_drav.xlsx";

/// Fills the Excel template `xlsx` with `record`: named cells of its first sheet and the table of layers.
/// Numbers are written unrounded, shown with one decimal where the template has no format of its own. The
/// same record and template give the same bytes.
/// @throws TemplateFailure when the template cannot be used
std::string WriteExcelReport(std::string_view xlsx, const ReportRecord& record);

/// Fills the sheet of `workbook` that is being filled with `record`, and adds the sheets beside it.
void FillExcelReport(Workbook& workbook, const ReportRecord& record);

}  // namespace velmar::presentation
