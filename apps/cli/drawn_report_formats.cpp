#include "application/material_sources.h"
#include "cli/drawn/drawn_formats.h"
#include "cli/drawn/offscreen_display.h"
#include "documents/template_file.h"
#include "presentation/export/studio_paper.h"
#include "report_formats.h"

namespace {

velmar::application::DocumentPlaces DocumentPlacesOf(const ReportPlaces& places) {
  return {.templates = places.templates,
          .shipped_templates = places.shipped_templates,
          .data_folder = places.data_folder,
          .catalogue = places.catalogue,
          .shipped_catalogue = places.shipped_catalogue};
}

}  // namespace

std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const ReportPlaces& places) {
  return velmar::cli::DrawnFormats(DocumentPlacesOf(places));
}

bool IsReadablePicture(const std::string& bytes) {
  velmar::cli::OffscreenDisplay display;
  display.Open();
  return velmar::presentation::PictureOfFile(bytes, velmar::presentation::kLogoWidthMm,
                                             velmar::presentation::kLogoHeightMm, {})
      .has_value();
}

velmar::cli::TogetherReports FurtherTogetherReports(const ReportPlaces& places,
                                                    const velmar::cli::Services& services) {
  return velmar::cli::DrawnTogether([=] {
    return velmar::documents::ScheduleTools{
        .words = services.words,
        .materials = services.materials,
        .sources = velmar::application::MaterialSourcesIn(services.material_database, services.words),
        .places = DocumentPlacesOf(places),
        .accuracy = services.accuracy()};
  });
}

std::function<velmar::Message(const std::filesystem::path&)> TemplateCheck() {
  return velmar::documents::CheckTemplateFile;
}
