#pragma once

#include "elements/setup.h"

namespace velmar::calculation {

/// What the main window shows of an element beside its layers.
struct Totals {
  double thickness_mm = 0.0;        ///< `Text3`
  double surface_mass_kg_m2 = 0.0;  ///< `Text4`

  bool operator==(const Totals&) const = default;
};

/// `calcolo_spessore`: thickness and surface mass of the stacks that the chosen calculation uses. The mass is
/// rounded to four decimals, ties to even, after every addition, so the sum accumulates its rounding.
///
/// The cavity of a SEA wall or lining adds its depth to the thickness; what fills it adds mass alone. A
/// lining stands on its base, of 200 mm where no thickness is given. A facade, or no calculation, adds
/// nothing.
Totals ComputeTotals(const elements::Setup& setup);

}  // namespace velmar::calculation
