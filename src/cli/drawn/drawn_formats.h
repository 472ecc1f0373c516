#pragma once

#include <vector>

#include "cli/report_format.h"

namespace velmar::cli {

/// The reports that are drawn: the printed page (--pdf) and the chart (--svg). The first one drawn starts an
/// OffscreenDisplay, unless the process has a QGuiApplication.
std::vector<ReportFormat> DrawnFormats();

}  // namespace velmar::cli
