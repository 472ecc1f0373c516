#include "presentation/export/drawn_picture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgGenerator>
#include <cmath>

#include "presentation/drawing/page_text.h"

namespace velmar::presentation {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPixelsPerInch = 96.0;
constexpr double kDotsPerInch = 300.0;
constexpr int kLabelPixels = 11;

QSizeF PixelsOf(const QSizeF& millimetres) { return millimetres * (kPixelsPerInch / kMillimetresPerInch); }

void DrawWithFont(QPainter& painter, const QSizeF& pixels, const Drawing& draw) {
  QFont font = PageFont(kTextPoints);
  font.setPixelSize(kLabelPixels);
  painter.setFont(font);
  draw(painter, QRectF(QPointF(), pixels));
}

}  // namespace

std::int64_t Emu(double millimetres) {
  return std::llround(millimetres / kMillimetresPerInch * static_cast<double>(kEmuPerInch));
}

std::string PngOf(const QSizeF& millimetres, const Drawing& draw) {
  constexpr double kScale = kDotsPerInch / kPixelsPerInch;
  const QSizeF pixels = PixelsOf(millimetres);
  QImage image((pixels * kScale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kScale);
  image.fill(Qt::white);
  QPainter painter(&image);
  DrawWithFont(painter, pixels, draw);
  painter.end();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

std::string SvgOf(const QSizeF& millimetres, const std::string& title, const Drawing& draw) {
  const QSizeF pixels = PixelsOf(millimetres);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(static_cast<int>(kPixelsPerInch));
  generator.setSize(pixels.toSize());
  generator.setViewBox(QRectF(QPointF(), pixels));
  // The generator writes the title as it stands.
  generator.setTitle(QString::fromStdString(title).toHtmlEscaped());
  QPainter painter(&generator);
  DrawWithFont(painter, pixels, draw);
  painter.end();
  return buffer.data().toStdString();
}

Picture PictureOf(const QSizeF& millimetres, const std::string& alternative_text, const Drawing& draw,
                  bool vectors) {
  return {.png = PngOf(millimetres, draw),
          .svg = vectors ? SvgOf(millimetres, alternative_text, draw) : std::string(),
          .width_emu = Emu(millimetres.width()),
          .height_emu = Emu(millimetres.height()),
          .alternative_text = alternative_text};
}

}  // namespace velmar::presentation
