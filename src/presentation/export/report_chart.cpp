#include "presentation/export/report_chart.h"

#include <QPainter>
#include <utility>

#include "presentation/export/drawn_picture.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {
namespace {

constexpr QSizeF kMillimetres{116.0, 66.0};

}  // namespace

std::optional<CurveChart> WholeChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                       const Words& words, std::optional<CurveChart> shown) {
  std::optional<CurveChart> chart = shown ? std::move(shown) : CurveChartOf(setup, result, words);
  if (chart) ShowWhole(*chart);
  return chart;
}

std::optional<Picture> ReportChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                     const Words& words, std::optional<CurveChart> shown) {
  const std::optional<CurveChart> chart = WholeChartOf(setup, result, words, std::move(shown));
  if (!chart) return std::nullopt;
  return PictureOf(
      kMillimetres, ChartDescription(setup, result, words),
      [&](QPainter& painter, const QRectF& area) { DrawCurveChart(painter, area, *chart); }, false);
}

std::int64_t ReportChartWidth() { return Emu(kMillimetres.width()); }

}  // namespace velmar::presentation
