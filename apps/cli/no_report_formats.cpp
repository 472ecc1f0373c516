#include "report_formats.h"

std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const std::filesystem::path& /*templates*/) {
  return {};
}

velmar::cli::TogetherReports FurtherTogetherReports(const std::filesystem::path& /*templates*/,
                                                    const velmar::cli::Services& /*services*/) {
  return {};
}

std::function<velmar::Message(const std::filesystem::path&)> TemplateCheck() { return {}; }
