#pragma once

#include <QRectF>

#include "presentation/drawing/material_kind.h"

class QPainter;

namespace velmar::presentation {

/// Fills `strip` with the tint and the hatch of `kind`, without a border. Hatches keep their size whatever
/// the strip's. @param horizontal the layer lies; grain and fibre follow it
void FillStrip(QPainter& painter, const QRectF& strip, MaterialKind kind, bool horizontal);

}  // namespace velmar::presentation
