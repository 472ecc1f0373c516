#pragma once

#include <functional>
#include <vector>

#include "application/documents/document_style.h"
#include "cli/output/report_format.h"
#include "documents/schedule_maker.h"

namespace velmar::cli {

/// The reports that need drawing or a template: Word (--docx), Excel (--xlsx), the printed page (--pdf) and
/// the chart (--svg). The first one drawn starts an OffscreenDisplay, unless the process has a
/// QGuiApplication.
std::vector<ReportFormat> DrawnFormats(const application::DocumentPlaces& places);

/// One document of several projects: Word, Excel and PDF. @param tools makes what they are made with, asked
/// for each document
TogetherReports DrawnTogether(std::function<documents::ScheduleTools()> tools);

}  // namespace velmar::cli
