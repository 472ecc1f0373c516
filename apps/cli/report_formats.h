#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/report_format.h"

/// The kinds of report that this program was built with, beyond the plain table. `templates` is the folder of
/// the Word and Excel templates.
std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const std::filesystem::path& templates);

/// The documents of several projects that this program was built with; none where nothing draws.
/// @param templates as above @param services what they are made with, but for these reports
velmar::cli::TogetherReports FurtherTogetherReports(const std::filesystem::path& templates,
                                                    const velmar::cli::Services& services);

/// What `report --check-template` asks; empty where nothing draws.
std::function<velmar::Message(const std::filesystem::path&)> TemplateCheck();
