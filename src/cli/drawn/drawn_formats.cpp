#include "cli/drawn/drawn_formats.h"

#include <functional>
#include <memory>
#include <optional>

#include "cli/drawn/offscreen_display.h"
#include "documents/office_reports.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/export/chart_svg.h"
#include "presentation/export/page_pdf.h"
#include "presentation/export/report_chart.h"

namespace velmar::cli {
namespace {

std::optional<presentation::CurveChart> WholeChart(const ReportContent& content) {
  return presentation::WholeChartOf(content.setup, content.result, content.words);
}

std::string Pdf(const application::DocumentPlaces& places, const ReportContent& content) {
  return presentation::PagePdf(documents::PageOf(content, documents::StyleOfContent(places, content)),
                               content.name);
}

std::string Svg(const ReportContent& content) {
  const std::optional<presentation::CurveChart> chart = WholeChart(content);
  if (!chart) throw Failure({{kRatingsOnlyRow}}, "no chart: the calculation has no curve");
  return presentation::ChartSvg(*chart, content.name);
}

}  // namespace

std::vector<ReportFormat> DrawnFormats(const application::DocumentPlaces& places) {
  const auto display = std::make_shared<OffscreenDisplay>();
  const auto drawn = [display](std::function<std::string(const ReportContent&)> bytes) {
    return [display, bytes = std::move(bytes)](const ReportContent& content) {
      display->Open();
      return bytes(content);
    };
  };
  const auto word = [places](const ReportContent& content) {
    return documents::WordReportBytes(places, content);
  };
  const auto excel = [places](const ReportContent& content) {
    return documents::ExcelReportBytes(places, content);
  };
  const auto pdf = [places](const ReportContent& content) { return Pdf(places, content); };
  return {{.extension = "docx", .help = kWordHelpRow, .bytes = drawn(word)},
          {.extension = "xlsx", .help = kExcelHelpRow, .bytes = drawn(excel)},
          {.extension = "pdf", .help = kPdfHelpRow, .bytes = drawn(pdf)},
          {.extension = "svg", .help = kSvgHelpRow, .bytes = drawn(Svg)}};
}

TogetherReports DrawnTogether(std::function<documents::ScheduleTools()> tools) {
  const auto display = std::make_shared<OffscreenDisplay>();
  const auto make = [display, tools = std::move(tools)](const TogetherOrder& order) {
    display->Open();
    documents::MadeSchedule made =
        *documents::MakeSchedule({.projects = order.projects,
                                  .format = documents::ScheduleFormatOf(order.extension).value(),
                                  .title = order.title,
                                  .language = order.language,
                                  .go_on_outside_ranges = order.go_on_outside_ranges},
                                 tools());
    TogetherDocument document{.bytes = std::move(made.bytes), .remarks = std::move(made.remarks)};
    for (documents::FailedProject& failed : made.failed)
      document.failed.push_back({std::move(failed.project), std::move(failed.reason)});
    return document;
  };
  return {.extensions = {"docx", "pdf", "xlsx"}, .make = make};
}

}  // namespace velmar::cli
