#pragma once

#include <QSizeF>
#include <cstdint>
#include <functional>
#include <string>

#include "presentation/documents/picture.h"

class QPainter;
class QRectF;

namespace velmar::presentation {

/// Draws into an area in pixels of 1/96 inch; the painter has the font of labels.
using Drawing = std::function<void(QPainter& painter, const QRectF& area)>;

/// A length in English Metric Units.
std::int64_t Emu(double millimetres);

/// `draw` as a bitmap of 300 dots an inch, `millimetres` large: the bytes of a PNG.
std::string PngOf(const QSizeF& millimetres, const Drawing& draw);

/// `draw` as an SVG picture of the same size. @param title its name for who cannot see it, UTF-8
std::string SvgOf(const QSizeF& millimetres, const std::string& title, const Drawing& draw);

/// `draw` for a document. @param vectors whether an SVG stands beside the bitmap
Picture PictureOf(const QSizeF& millimetres, const std::string& alternative_text, const Drawing& draw,
                  bool vectors);

}  // namespace velmar::presentation
