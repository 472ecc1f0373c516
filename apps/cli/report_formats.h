#pragma once

#include <filesystem>
#include <vector>

#include "cli/output/report_format.h"

/// The kinds of report that this program was built with, beyond the plain table. `templates` is the folder of
/// the Word and Excel templates.
std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const std::filesystem::path& templates);
