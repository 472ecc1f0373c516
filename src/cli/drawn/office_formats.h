#pragma once

#include <filesystem>
#include <string>

#include "cli/output/report_format.h"

namespace velmar::cli {

/// The Word report out of the template in `templates`. A QGuiApplication must exist.
/// @throws Failure when the template is missing or cannot be used
std::string WordReportBytes(const std::filesystem::path& templates, const ReportContent& content);

/// The Excel report out of the template in `templates`.
/// @throws Failure when the template is missing or cannot be used
std::string ExcelReportBytes(const std::filesystem::path& templates, const ReportContent& content);

}  // namespace velmar::cli
