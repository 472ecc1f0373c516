#pragma once

#include <QFont>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <vector>

#include "presentation/drawing/section.h"
#include "presentation/drawing/section_drawing.h"

namespace velmar::presentation {

/// A number beside the strips.
struct SectionLabel {
  int number = 0;
  QRectF box{};
  QPolygonF leader{};  ///< from the number into its strip
};

/// A line of the list of names.
struct SectionListEntry {
  int number = 0;
  QString text{};  ///< in full; cut to the box when drawn
  QRectF box{};
};

/// A thickness told beside the strips it belongs to.
struct SectionDimension {
  double from = 0.0;  ///< along the strips' depth
  double to = 0.0;
  double thickness_mm = 0.0;
};

/// Where the pieces of a section stand.
struct SectionLayout {
  QFont font{};
  double text_px = 0.0;
  double label_px = 0.0;  ///< text of the numbers; smaller when there are many
  QRectF body{};          ///< the strips
  std::vector<QRectF> strips{};
  std::vector<SectionLabel> labels{};
  std::vector<SectionListEntry> list{};
  QRectF arrow{};      ///< band of the dimension arrow
  double chain = 0.0;  ///< what the thicknesses of the layers take of it
  std::vector<SectionDimension> dimensions{};
};

/// The far end of the dimension arrow: "330 (mm)".
QString DimensionText(double thickness_mm,
                      elements::DocumentLanguage language = elements::DocumentLanguage::kItalian);

/// The places of the pieces of `section` within `area`. Numbers never overlap and none is left out; names are
/// left out where they would leave too little for the strips.
SectionLayout LayoutOf(const QRectF& area, const Section& section, const QFont& font,
                       const SectionOptions& options);

}  // namespace velmar::presentation
