#pragma once

#include <vector>

#include "application/documents/document_style.h"
#include "cli/output/report_format.h"
#include "presentation/drawing/printed_page.h"

namespace velmar::cli {

/// The page that --pdf writes: the one that the window prints when nothing is laid over its chart.
presentation::PaginaDiStampa PageOf(const ReportContent& content);

/// The same with its origin, in the language and on the paper of `style`.
presentation::PaginaDiStampa PageOf(const ReportContent& content, const application::DocumentStyle& style);

/// The reports that need drawing or a template: Word (--docx), Excel (--xlsx), the printed page (--pdf) and
/// the chart (--svg). The first one drawn starts an OffscreenDisplay, unless the process has a
/// QGuiApplication.
std::vector<ReportFormat> DrawnFormats(const application::DocumentPlaces& places);

}  // namespace velmar::cli
