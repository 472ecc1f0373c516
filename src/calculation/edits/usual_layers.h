#pragma once

#include <span>
#include <string_view>

#include "elements/catalogue.h"
#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// One layer that an element usually has. Its material is named as the shipped tables name it.
struct UsualLayer {
  elements::LayerGroup group{};
  std::string_view material{};
  double thickness_mm = 0.0;  ///< of one sheet; 0: the default of the material
  int sheets = 1;
};

/// The layers that an element of `calculation` usually has, in the order of their rows, group by group; none
/// where it has no layers of its own, as a facade. What they weigh and measure lies within the range of the
/// calculation's relation.
std::span<const UsualLayer> UsualLayersOf(elements::Calculation calculation);

/// Begins an element: chooses `calculation` and puts the usual layers and the usual cavity of its kind into
/// `setup` - glass for panes, boards on studs with wool between them, slab, mat and screed for floors. A
/// material that the user's tables do not hold leaves its row as it was.
void BeginElement(elements::Setup& setup, elements::Calculation calculation,
                  const elements::MaterialLookup& materials);

}  // namespace velmar::calculation
