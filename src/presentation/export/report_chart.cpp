#include "presentation/export/report_chart.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <utility>

#include "presentation/drawing/page_text.h"
#include "presentation/reports/report_record.h"

namespace velmar::presentation {
namespace {

constexpr QSizeF kMillimetres{116.0, 82.0};
constexpr double kMillimetresPerInch = 25.4;
constexpr double kPixelsPerInch = 96.0;
constexpr double kDotsPerInch = 300.0;
constexpr QSizeF kPixels = kMillimetres * (kPixelsPerInch / kMillimetresPerInch);
constexpr int kLabelPixels = 11;

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
                                       const Words& words, std::optional<CurveChart> shown) {
  std::optional<CurveChart> chart = shown ? std::move(shown) : CurveChartOf(setup, result, words);
  if (chart) ShowWhole(*chart);
  return chart;
}

std::optional<Picture> ReportChartOf(const elements::Setup& setup, const elements::ResultSet& result,
                                     const Words& words, std::optional<CurveChart> shown) {
  const std::optional<CurveChart> chart = WholeChartOf(setup, result, words, std::move(shown));
  if (!chart) return std::nullopt;
  return Picture{.png = Png(*chart),
                 .width_emu = Emu(kMillimetres.width()),
                 .height_emu = Emu(kMillimetres.height()),
                 .alternative_text = ChartDescription(setup, result, words)};
}

}  // namespace velmar::presentation
