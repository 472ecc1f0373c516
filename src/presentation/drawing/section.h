#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/setup.h"
#include "presentation/drawing/material_kind.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// A row of an input page, index from 0. No group: the base element, or air.
struct LayerPlace {
  std::optional<elements::LayerGroup> group;
  int row = 0;

  bool operator==(const LayerPlace&) const = default;
};

/// One layer of the section.
struct Strip {
  double position_mm = 0.0;  ///< of its near side
  double thickness_mm = 0.0;
  MaterialKind kind = MaterialKind::kGeneric;
  int number = 0;  ///< of the layer, as everywhere else; 0: air has none
  std::string name{};
  LayerPlace place{};
  double sheet_mm = 0.0;  ///< thickness as entered; the strip is thinner where a cavity has no room for it
};

/// A cut through the element as it stands: near side first, a floor from its finish downwards.
struct Section {
  bool horizontal = false;  ///< floors and ceilings: depth runs downwards
  double thickness_mm = 0.0;
  std::vector<Strip> strips{};
};

/// The section of `setup`. A row of several layers gives as many strips under one number. Fills take their
/// place from the near side of the cavity, what they leave is air, and what does not fit is cut. A facade, or
/// a set-up without thickness, has no strips.
/// @param words name the fibre of a cavity, which is no material of the tables; without them it has no name
Section SectionOf(const elements::Setup& setup, const Words& words = {});

/// The number under which the row at `place` stands in `section`; 0 when it is not drawn.
int NumberOf(const Section& section, const LayerPlace& place);

/// A strip across the drawing, in its 1000 logical units: a margin of 10, then 990 for the whole thickness.
struct StripSpan {
  double from = 0.0;
  double to = 0.0;
};
inline constexpr double kSectionUnits = 1000.0;
inline constexpr double kSectionMargin = 10.0;

/// The span of `strip`. @param thickness_mm of the element, above 0
StripSpan SpanOf(const Strip& strip, double thickness_mm);

}  // namespace velmar::presentation
