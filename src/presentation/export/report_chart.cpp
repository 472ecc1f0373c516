#include "presentation/export/report_chart.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "presentation/drawing/page_text.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {
namespace {

/// What a chart of 10 to 80 dB has room for.
constexpr double kLowestShown = 0.0;
constexpr double kHighestShown = 90.0;

constexpr QSizeF kMillimetres{116.0, 82.0};
constexpr double kMillimetresPerInch = 25.4;
constexpr double kPixelsPerInch = 96.0;
constexpr double kDotsPerInch = 300.0;
constexpr QSizeF kPixels = kMillimetres * (kPixelsPerInch / kMillimetresPerInch);
constexpr int kLabelPixels = 11;

bool Leaves(const acoustics::Spectrum& values, const CurveChart& chart) {
  return std::any_of(values.begin() + static_cast<std::ptrdiff_t>(chart.first_band),
                     values.begin() + static_cast<std::ptrdiff_t>(chart.last_band) + 1,
                     [](double level) { return level < kLowestShown || level > kHighestShown; });
}

std::int64_t Emu(double millimetres) {
  return std::llround(millimetres / kMillimetresPerInch * static_cast<double>(kEmuPerInch));
}

std::string Png(const CurveChart& chart) {
  constexpr double kScale = kDotsPerInch / kPixelsPerInch;
  QImage image((kPixels * kScale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  image.fill(Qt::white);
  QPainter painter(&image);
  QFont font = PageFont(kTextPoints);
  font.setPixelSize(kLabelPixels);
  painter.setFont(font);
  DrawCurveChart(painter, QRectF(QPointF(), kPixels), chart);
  painter.end();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

}  // namespace

std::optional<CurveChart> WholeChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                       const Words& words) {
  std::optional<CurveChart> chart = CurveChartOf(setup, result, words);
  if (chart)
    chart->autoscale = Leaves(chart->values, *chart) || (chart->base && Leaves(*chart->base, *chart));
  return chart;
}

std::optional<Picture> ReportChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                     const Words& words) {
  const std::optional<CurveChart> chart = WholeChartOf(setup, result, words);
  if (!chart) return std::nullopt;
  return Picture{.png = Png(*chart),
                 .width_emu = Emu(kMillimetres.width()),
                 .height_emu = Emu(kMillimetres.height()),
                 .alternative_text = ChartDescription(setup, result, words)};
}

}  // namespace velmar::presentation
