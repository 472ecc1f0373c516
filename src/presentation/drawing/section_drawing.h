#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <optional>

#include "elements/studio_profile.h"
#include "presentation/drawing/section.h"
#include "presentation/texts/words.h"

class QPainter;

namespace velmar::presentation {

struct SectionOptions {
  int highlighted_number = 0;       ///< the row to light up; 0 for none
  bool list_names = true;           ///< numbers and names beside or below the section, where there is room
  bool strips_alone = false;        ///< nothing beside the strips, which take the whole area
  double smallest_number_px = 4.0;  ///< where numbers would have to be smaller, they stand in more lanes
  bool paper = false;  ///< with the thickness of each layer beside it, where it fits, and behind its name
  elements::DocumentLanguage language = elements::DocumentLanguage::kItalian;  ///< of the decimal sign
  QString near_side{};  ///< what lies before the first strip: "interno", "sopra"
  QString far_side{};   ///< what lies behind the last one
};

/// How paper draws the section of `setup`: with the thickness of each layer and with what lies on its sides.
/// The first leaf of a wall stands inside; of a wall with a lining the lining does.
SectionOptions PaperOptions(const elements::Setup& setup, const Words& words,
                            elements::DocumentLanguage language = elements::DocumentLanguage::kItalian);

/// Draws `section` to scale into `area`, on white, in units of which one is a screen pixel: strips, numbers
/// with leaders, the dimension arrow, the list of names. A section without thickness draws nothing but the
/// paper.
void DrawSection(QPainter& painter, const QRectF& area, const Section& section,
                 const SectionOptions& options = {});

/// Draws the strips of `section` alone, to scale, over the whole of `area`: an element in small. A section
/// without thickness draws nothing.
void DrawSectionStrips(QPainter& painter, const QRectF& area, const Section& section);

/// The row whose strip, number or name stands at `position` when `section` is drawn into `area` with `font`.
std::optional<LayerPlace> LayerAt(const QPointF& position, const QRectF& area, const Section& section,
                                  const QFont& font, const SectionOptions& options = {});

}  // namespace velmar::presentation
