#pragma once

#include <string>

#include "application/documents/document_style.h"
#include "application/report_content.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/reports/report_record.h"

namespace velmar::documents {

using application::ReportContent;

/// What a document says of the origin of `content`, its date in `language`.
presentation::Provenance ProvenanceOfContent(
    const ReportContent& content, elements::DocumentLanguage language = elements::DocumentLanguage::kItalian);

/// How the documents of `content` are written; what cannot be used of the profile is told.
application::DocumentStyle StyleOfContent(const application::DocumentPlaces& places,
                                          const ReportContent& content);

/// Everything that a Word or Excel report shows of `content`. A QGuiApplication must exist.
/// @param with_chart whether the record holds the picture of the curves
presentation::ReportRecord RecordOf(const ReportContent& content, const application::DocumentStyle& style,
                                    bool with_chart);

/// The page that the window prints of `content` when nothing is laid over its chart, with its origin, in the
/// language and on the paper of `style`.
presentation::PaginaDiStampa PageOf(const ReportContent& content, const application::DocumentStyle& style);

/// The Word report out of the template in `places`. A QGuiApplication must exist.
/// @throws Failure, which names the template, when it is missing or cannot be used
std::string WordReportBytes(const application::DocumentPlaces& places, const ReportContent& content);
/// @param signs false for a chapter of a document that is signed elsewhere
std::string WordReportBytes(const application::DocumentPlaces& places,
                            const application::DocumentStyle& style, const ReportContent& content,
                            bool signs = true);

/// The Excel report out of the template in `places`. A QGuiApplication must exist.
/// @throws Failure, which names the template, when it is missing or cannot be used
std::string ExcelReportBytes(const application::DocumentPlaces& places, const ReportContent& content);

}  // namespace velmar::documents
