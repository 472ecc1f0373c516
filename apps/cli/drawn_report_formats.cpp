#include "cli/drawn/drawn_formats.h"
#include "cli/drawn/offscreen_display.h"
#include "presentation/export/studio_paper.h"
#include "report_formats.h"

std::vector<velmar::cli::ReportFormat> FurtherReportFormats(const ReportPlaces& places) {
  return velmar::cli::DrawnFormats({.templates = places.templates,
                                    .shipped_templates = places.shipped_templates,
                                    .data_folder = places.data_folder,
                                    .catalogue = places.catalogue,
                                    .shipped_catalogue = places.shipped_catalogue});
}

bool IsReadablePicture(const std::string& bytes) {
  velmar::cli::OffscreenDisplay display;
  display.Open();
  return velmar::presentation::PictureOfFile(bytes, velmar::presentation::kLogoWidthMm,
                                             velmar::presentation::kLogoHeightMm, {})
      .has_value();
}
