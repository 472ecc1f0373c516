#pragma once

#include <string>

#include "application/documents/document_style.h"
#include "cli/output/report_format.h"

namespace velmar::cli {

/// What a document says of the origin of `content`, its date in `language`.
presentation::Provenance ProvenanceOfContent(
    const ReportContent& content, elements::DocumentLanguage language = elements::DocumentLanguage::kItalian);

/// How the documents of `content` are written; what cannot be used of the profile is told.
application::DocumentStyle StyleOfContent(const application::DocumentPlaces& places,
                                          const ReportContent& content);

/// The Word report out of the template in `places`. A QGuiApplication must exist.
/// @throws Failure when the template is missing or cannot be used
std::string WordReportBytes(const application::DocumentPlaces& places, const ReportContent& content);

/// The Excel report out of the template in `places`.
/// @throws Failure when the template is missing or cannot be used. A QGuiApplication must exist
std::string ExcelReportBytes(const application::DocumentPlaces& places, const ReportContent& content);

}  // namespace velmar::cli
