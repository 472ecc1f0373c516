#include "cli/drawn/drawn_formats.h"

#include <functional>
#include <memory>
#include <optional>

#include "cli/drawn/office_formats.h"
#include "cli/drawn/offscreen_display.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/export/chart_svg.h"
#include "presentation/export/page_pdf.h"
#include "presentation/export/report_chart.h"

namespace velmar::cli {
namespace {

std::optional<presentation::CurveChart> WholeChart(const ReportContent& content) {
  return presentation::WholeChartOf(content.setup, content.result, content.words);
}

std::string Pdf(const application::DocumentPlaces& places, const ReportContent& content) {
  return presentation::PagePdf(PageOf(content, StyleOfContent(places, content)), content.name);
}

std::string Svg(const ReportContent& content) {
  const std::optional<presentation::CurveChart> chart = WholeChart(content);
  if (!chart) throw Failure({{kRatingsOnlyRow}}, "no chart: the calculation has no curve");
  return presentation::ChartSvg(*chart, content.name);
}

}  // namespace

presentation::PaginaDiStampa PageOf(const ReportContent& content) {
  return presentation::PaginaDi(content.setup,
                                {content.totals.thickness_mm, content.totals.surface_mass_kg_m2},
                                &content.result, content.words, WholeChart(content), content.confidence);
}

presentation::PaginaDiStampa PageOf(const ReportContent& content, const application::DocumentStyle& style) {
  const std::optional<presentation::CurveChart> chart =
      presentation::WholeChartOf(content.setup, content.result, style.Captions());
  const auto page_in = [&](const elements::Setup& setup, const presentation::Words& words,
                           elements::DocumentLanguage language) {
    presentation::PaginaDiStampa page =
        presentation::PaginaDi(setup, {content.totals.thickness_mm, content.totals.surface_mass_kg_m2},
                               &content.result, words, chart, content.confidence, language);
    const presentation::Provenance provenance = ProvenanceOfContent(content, language);
    TellProvenance(page, setup, words, provenance, language);
    TellStudio(page, setup, PageStudioOf(style), words, provenance);
    return page;
  };
  presentation::PaginaDiStampa page = application::InLanguages(style, content.setup, page_in);
  if (style.english)
    page.section_options = presentation::PaperOptions(content.setup, style.Captions(), style.language);
  return page;
}

std::vector<ReportFormat> DrawnFormats(const application::DocumentPlaces& places) {
  const auto display = std::make_shared<OffscreenDisplay>();
  const auto drawn = [display](std::function<std::string(const ReportContent&)> bytes) {
    return [display, bytes = std::move(bytes)](const ReportContent& content) {
      display->Open();
      return bytes(content);
    };
  };
  const auto word = [places](const ReportContent& content) { return WordReportBytes(places, content); };
  const auto excel = [places](const ReportContent& content) { return ExcelReportBytes(places, content); };
  const auto pdf = [places](const ReportContent& content) { return Pdf(places, content); };
  return {{.extension = "docx", .help = kWordHelpRow, .bytes = drawn(word)},
          {.extension = "xlsx", .help = kExcelHelpRow, .bytes = drawn(excel)},
          {.extension = "pdf", .help = kPdfHelpRow, .bytes = drawn(pdf)},
          {.extension = "svg", .help = kSvgHelpRow, .bytes = drawn(Svg)}};
}

}  // namespace velmar::cli
