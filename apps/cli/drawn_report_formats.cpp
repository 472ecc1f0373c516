#include "application/material_sources.h"
#include "cli/drawn/drawn_formats.h"
#include "documents/template_file.h"
#include "report_formats.h"

std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const std::filesystem::path& templates) {
  return velmar::cli::DrawnFormats(templates);
}

velmar::cli::TogetherReports FurtherTogetherReports(const std::filesystem::path& templates,
                                                    const velmar::cli::Services& services) {
  return velmar::cli::DrawnTogether([=] {
    return velmar::documents::ScheduleTools{
        .words = services.words,
        .materials = services.materials,
        .sources = velmar::application::MaterialSourcesIn(services.material_database, services.words),
        .templates = templates,
        .accuracy = services.accuracy()};
  });
}

std::function<velmar::Message(const std::filesystem::path&)> TemplateCheck() {
  return velmar::documents::CheckTemplateFile;
}
