#include "cli/drawn/drawn_formats.h"
#include "report_formats.h"

std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const std::filesystem::path& templates) {
  return velmar::cli::DrawnFormats(templates);
}
