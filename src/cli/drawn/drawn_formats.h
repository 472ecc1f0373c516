#pragma once

#include <filesystem>
#include <vector>

#include "cli/output/report_format.h"
#include "presentation/drawing/printed_page.h"

namespace velmar::cli {

/// The page that --pdf writes: the one that the window prints when nothing is laid over its chart.
presentation::PaginaDiStampa PageOf(const ReportContent& content);

/// The reports that need drawing or a template: Word (--docx), Excel (--xlsx), the printed page (--pdf) and
/// the chart (--svg). `templates` is the folder of the templates. The first one drawn starts an
/// OffscreenDisplay, unless the process has a QGuiApplication.
std::vector<ReportFormat> DrawnFormats(const std::filesystem::path& templates);

}  // namespace velmar::cli
