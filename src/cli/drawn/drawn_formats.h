#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "cli/output/report_format.h"
#include "documents/schedule_maker.h"

namespace velmar::cli {

/// The reports that need drawing or a template: Word (--docx), Excel (--xlsx), the printed page (--pdf) and
/// the chart (--svg). `templates` is the folder of the templates. The first one drawn starts an
/// OffscreenDisplay, unless the process has a QGuiApplication.
std::vector<ReportFormat> DrawnFormats(const std::filesystem::path& templates);

/// One document of several projects: Word, Excel and PDF. @param tools makes what they are made with, asked
/// for each document
TogetherReports DrawnTogether(std::function<documents::ScheduleTools()> tools);

}  // namespace velmar::cli
