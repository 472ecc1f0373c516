#pragma once

#include <filesystem>
#include <string>

#include "cli/output/report_format.h"

namespace velmar::cli {

/// What a document says of the origin of `content`.
presentation::Provenance ProvenanceOfContent(const ReportContent& content);

/// The Word report out of the template in `templates`. A QGuiApplication must exist.
/// @throws Failure when the template is missing or cannot be used
std::string WordReportBytes(const std::filesystem::path& templates, const ReportContent& content);

/// The Excel report out of the template in `templates`.
/// @throws Failure when the template is missing or cannot be used. A QGuiApplication must exist
std::string ExcelReportBytes(const std::filesystem::path& templates, const ReportContent& content);

}  // namespace velmar::cli
