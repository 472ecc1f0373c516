#pragma once

#include <span>
#include <string>

#include "elements/setup.h"

namespace velmar::calculation {

/// Chooses `calculation` for `setup`, as its menu entry does. All entered values stay; only what the
/// calculation has a default of its own for is set: dimensions, `Text8`, the cavity's kind and type, the
/// simplified form of a lining.
void SelectCalculation(elements::Setup& setup, elements::Calculation calculation);

/// What the text field `Text8` asks of a calculation.
enum class SupportField {
  kHidden,
  kStudDistance,      ///< a distance in cm
  kPointConnections,  ///< a whole number of fixings
  kLineConnections,   ///< a number of lines
};

/// How the fields of a set-up stand for one calculation.
struct FieldLayout {
  bool generic_cavity_offered = true;  ///< `Option2`(2) "Materiale generico"
  bool fibre_thickness_shown = false;  ///< `Text31`
  SupportField support = SupportField::kHidden;
  bool hanger_shown = false;           ///< `ComboTipoAppendino`
  bool decoupling_shown = false;       ///< `CheckDesolidarizza`
  bool connected_layer_shown = false;  ///< the variants that ask for the layer where a connection acts
  bool improvement_shown = false;      ///< `FrameDrw`
  int cavity_types = elements::kSeaCavityTypeCount;  ///< how many items `ComboTipoIntercSEA` offers
};

/// The layout of `calculation`.
FieldLayout LayoutOf(elements::Calculation calculation);

}  // namespace velmar::calculation
