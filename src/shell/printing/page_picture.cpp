#include "shell/printing/page_picture.h"

#include <QPainter>

namespace velmar::printing {
namespace {

using presentation::PreparaPagina;

QSizeF InchesOf(const presentation::PrinterPaper& paper) { return PreparaPagina(paper, {}).paper_inches; }

}  // namespace

QSizeF PixelsOf(const presentation::PrinterPaper& paper, double zoom, double dots_per_inch) {
  return InchesOf(paper) * (zoom * dots_per_inch);
}

double FittingZoom(const presentation::PrinterPaper& paper, const QSizeF& room, double dots_per_inch) {
  return PreparaPagina(paper, room / dots_per_inch).factor;
}

QImage PictureOf(const presentation::PaginaDiStampa& page, const presentation::PrinterPaper& paper,
                 double zoom, double dots_per_inch, double device_pixel_ratio, int index) {
  const QSizeF size = PixelsOf(paper, zoom, dots_per_inch);
  QImage picture((size * device_pixel_ratio).toSize(), QImage::Format_RGB32);
  if (picture.isNull()) return picture;
  picture.setDevicePixelRatio(device_pixel_ratio);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const double factor = PreparaPagina(paper, size / dots_per_inch).factor;
  presentation::ComponiPagina(painter, dots_per_inch * factor, InchesOf(paper), page, index);
  return picture;
}

int PageCountOn(const presentation::PrinterPaper& paper, const presentation::PaginaDiStampa& page) {
  return presentation::PageCountOf(InchesOf(paper), page);
}

}  // namespace velmar::printing
