#pragma once

#include <span>

#include "foundation/message.h"

namespace velmar::models {

/// Equal sheets of one resilient material between the bearing structure and the screed of a floor.
struct ResilientMat {
  int multiplicity = 1;
  double thickness_mm = 0.0;             ///< of one sheet
  double density_kg_m3 = 0.0;            ///< negative when the material tells none
  double dynamic_stiffness_mn_m3 = 0.0;  ///< s' of one sheet; 0 when the material tells none
};

/// Dynamic stiffness s' of the sheets one on the other, MN/m³: 1 / s' adds up, each sheet by itself. Layers
/// of s' 0 do not take part; 0 when none is left.
/// @throws ArithmeticFailure when an s' is negative or the result is not finite
double CombinedDynamicStiffness(std::span<const ResilientMat> layers);

}  // namespace velmar::models
