#include "cli/drawn/drawn_formats.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>

#include "acoustics/bands.h"
#include "cli/drawn/offscreen_display.h"
#include "foundation/failure.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/export/chart_svg.h"
#include "presentation/export/page_pdf.h"

namespace velmar::cli {
namespace {

constexpr MessageRow kPdfHelpRow{1296};
constexpr MessageRow kSvgHelpRow{1298};
/// "This calculation gives the ratings only, without band values."
constexpr MessageRow kNoSpectrumRow{1022};

/// What a chart of 10 to 80 dB has room for.
constexpr double kLowestShown = 0.0;
constexpr double kHighestShown = 90.0;

bool Leaves(const acoustics::Spectrum& values, const presentation::CurveChart& chart) {
  return std::any_of(values.begin() + static_cast<std::ptrdiff_t>(chart.first_band),
                     values.begin() + static_cast<std::ptrdiff_t>(chart.last_band) + 1,
                     [](double level) { return level < kLowestShown || level > kHighestShown; });
}

/// The chart with the whole curve on it: on paper nobody can change the scale.
std::optional<presentation::CurveChart> WholeChart(const ReportContent& content) {
  auto chart = presentation::CurveChartOf(content.setup, content.result, content.words);
  if (chart)
    chart->autoscale = Leaves(chart->values, *chart) || (chart->base && Leaves(*chart->base, *chart));
  return chart;
}

std::string Pdf(const ReportContent& content) {
  const presentation::PageTotals totals{content.totals.thickness_mm, content.totals.surface_mass_kg_m2};
  const presentation::PaginaDiStampa page =
      presentation::PaginaDi(content.setup, totals, &content.result, content.words, WholeChart(content));
  return presentation::PagePdf(page, content.name);
}

std::string Svg(const ReportContent& content) {
  const std::optional<presentation::CurveChart> chart = WholeChart(content);
  if (!chart) throw Failure({{kNoSpectrumRow}}, "no chart: the calculation has no curve");
  return presentation::ChartSvg(*chart, content.name);
}

}  // namespace

std::vector<ReportFormat> DrawnFormats() {
  const auto display = std::make_shared<OffscreenDisplay>();
  const auto drawn = [display](std::string (*bytes)(const ReportContent&)) {
    return [display, bytes](const ReportContent& content) {
      display->Open();
      return bytes(content);
    };
  };
  return {{.extension = "pdf", .help = kPdfHelpRow, .bytes = drawn(Pdf)},
          {.extension = "svg", .help = kSvgHelpRow, .bytes = drawn(Svg)}};
}

}  // namespace velmar::cli
