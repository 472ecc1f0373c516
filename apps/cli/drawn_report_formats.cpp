#include "cli/drawn/drawn_formats.h"
#include "report_formats.h"

std::vector<velmar::cli::ReportFormat> FurtherReportFormats() { return velmar::cli::DrawnFormats(); }
