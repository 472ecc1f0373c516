#include "presentation/export/chart_svg.h"

#include <QBuffer>
#include <QPainter>
#include <QString>
#include <QSvgGenerator>

#include "presentation/drawing/page_text.h"

namespace velmar::presentation {
namespace {

constexpr double kMillimetresPerInch = 25.4;
// The size of a chart on paper, in pixels of 1/96 inch.
constexpr double kPixelsPerInch = 96.0;
constexpr QSizeF kMillimetres{160.0, 100.0};
constexpr QSizeF kPixels = kMillimetres * (kPixelsPerInch / kMillimetresPerInch);
constexpr double kLabelPixels = 11.0;

}  // namespace

std::string ChartSvg(const CurveChart& chart, const std::string& title) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(static_cast<int>(kPixelsPerInch));
  generator.setSize(kPixels.toSize());
  generator.setViewBox(QRectF(QPointF(), kPixels));
  // The generator writes the title as it stands.
  generator.setTitle(QString::fromStdString(title).toHtmlEscaped());
  QPainter painter(&generator);
  QFont font = PageFont(kTextPoints);
  font.setPixelSize(static_cast<int>(kLabelPixels));
  painter.setFont(font);
  DrawCurveChart(painter, QRectF(QPointF(), kPixels), chart);
  painter.end();
  return buffer.data().toStdString();
}

}  // namespace velmar::presentation
