#pragma once

#include <QImage>
#include <QSizeF>

#include "presentation/drawing/page_scale.h"
#include "presentation/drawing/printed_page.h"

namespace velmar::printing {

/// The paper's size on a screen at `zoom`; 1 is its size on paper.
/// @param dots_per_inch of the screen's logical pixels
QSizeF PixelsOf(const presentation::PrinterPaper& paper, double zoom, double dots_per_inch);

/// The largest zoom at which the whole paper fits `room`, in logical pixels.
double FittingZoom(const presentation::PrinterPaper& paper, const QSizeF& room, double dots_per_inch);

/// Page `index` of `page` as one picture as large as the paper at `zoom`.
/// @param device_pixel_ratio of the screen
QImage PictureOf(const presentation::PaginaDiStampa& page, const presentation::PrinterPaper& paper,
                 double zoom, double dots_per_inch, double device_pixel_ratio, int index = 0);

/// How many pages `page` takes on `paper`.
int PageCountOn(const presentation::PrinterPaper& paper, const presentation::PaginaDiStampa& page);

}  // namespace velmar::printing
