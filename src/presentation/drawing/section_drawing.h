#pragma once

#include <QFont>
#include <QRectF>
#include <optional>

#include "presentation/drawing/section.h"

class QPainter;

namespace velmar::presentation {

struct SectionOptions {
  int highlighted_number = 0;       ///< the row to light up; 0 for none
  bool list_names = true;           ///< numbers and names beside or below the section, where there is room
  double smallest_number_px = 4.0;  ///< where numbers would have to be smaller, some are left out
};

/// Draws `section` to scale into `area`, on white, in units of which one is a screen pixel: strips, numbers
/// with leaders, the dimension arrow, the list of names. A section without thickness draws nothing but the
/// paper.
void DrawSection(QPainter& painter, const QRectF& area, const Section& section,
                 const SectionOptions& options = {});

/// The row whose strip, number or name stands at `position` when `section` is drawn into `area` with `font`.
std::optional<LayerPlace> LayerAt(const QPointF& position, const QRectF& area, const Section& section,
                                  const QFont& font, const SectionOptions& options = {});

}  // namespace velmar::presentation
