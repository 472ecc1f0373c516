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

std::string Pdf(const ReportContent& content) {
  presentation::PaginaDiStampa page = PageOf(content);
  TellProvenance(page, content.setup, content.words, ProvenanceOfContent(content));
  return presentation::PagePdf(page, content.name);
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

std::vector<ReportFormat> DrawnFormats(const std::filesystem::path& templates) {
  const auto display = std::make_shared<OffscreenDisplay>();
  const auto drawn = [display](std::function<std::string(const ReportContent&)> bytes) {
    return [display, bytes = std::move(bytes)](const ReportContent& content) {
      display->Open();
      return bytes(content);
    };
  };
  const auto word = [templates](const ReportContent& content) { return WordReportBytes(templates, content); };
  const auto excel = [templates](const ReportContent& content) {
    return ExcelReportBytes(templates, content);
  };
  return {{.extension = "docx", .help = kWordHelpRow, .bytes = drawn(word)},
          {.extension = "xlsx", .help = kExcelHelpRow, .bytes = drawn(excel)},
          {.extension = "pdf", .help = kPdfHelpRow, .bytes = drawn(Pdf)},
          {.extension = "svg", .help = kSvgHelpRow, .bytes = drawn(Svg)}};
}

}  // namespace velmar::cli
