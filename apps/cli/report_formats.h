#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cli/commands/services.h"
#include "cli/output/report_format.h"

/// Where documents find their templates, texts and studio profile.
struct ReportPlaces {
  std::filesystem::path templates{};  ///< folder of the Word and Excel templates
  std::filesystem::path shipped_templates{};
  std::filesystem::path data_folder{};
  std::filesystem::path catalogue{};
  std::filesystem::path shipped_catalogue{};
};

/// The kinds of report that this program was built with, beyond the plain table.
std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const ReportPlaces& places);

/// Whether the bytes of a picture file can be read; always true in a program that draws nothing.
bool IsReadablePicture(const std::string& bytes);

/// The documents of several projects that this program was built with; none where nothing draws.
/// @param services what they are made with, but for these reports
velmar::cli::TogetherReports FurtherTogetherReports(const ReportPlaces& places,
                                                    const velmar::cli::Services& services);

/// What `report --check-template` asks; empty where nothing draws.
std::function<velmar::Message(const std::filesystem::path&)> TemplateCheck();
