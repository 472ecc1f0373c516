#pragma once

#include <filesystem>
#include <string>

#include "application/report_content.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/reports/report_record.h"

namespace velmar::documents {

using application::ReportContent;

/// What a document says of the origin of `content`.
presentation::Provenance ProvenanceOfContent(const ReportContent& content);

/// Everything that a Word or Excel report shows of `content`. A QGuiApplication must exist.
/// @param with_chart whether the record holds the picture of the curves
presentation::ReportRecord RecordOf(const ReportContent& content, bool with_chart);

/// The page that the window prints of `content` when nothing is laid over its chart, with its provenance.
presentation::PaginaDiStampa PageOf(const ReportContent& content);

/// The Word report out of the template in `templates`. A QGuiApplication must exist.
/// @throws Failure when the template is missing or cannot be used
std::string WordReportBytes(const std::filesystem::path& templates, const ReportContent& content);

/// The Excel report out of the template in `templates`.
/// @throws Failure when the template is missing or cannot be used. A QGuiApplication must exist
std::string ExcelReportBytes(const std::filesystem::path& templates, const ReportContent& content);

}  // namespace velmar::documents
