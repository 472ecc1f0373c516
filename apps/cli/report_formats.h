#pragma once

#include <vector>

#include "cli/report_format.h"

/// The kinds of report that this program was built with, beyond the plain table.
std::vector<velmar::cli::ReportFormat> FurtherReportFormats();
