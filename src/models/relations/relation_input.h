#pragma once

#include <vector>

#include "acoustics/constructions.h"

namespace velmar::models {

using acoustics::CavityKind;

/// A row of resilient layers under a floating screed.
struct ResilientLayer {
  double dynamic_stiffness_mn_m3 = 0.0;  ///< s' of one sheet; a row without one does not count
  int multiplicity = 1;                  ///< number of sheets
};

/// What the relations read. Lengths arrive in single precision, as they were typed: 330 mm then stands at the
/// limit of 0.33 m and not beside it.
struct RelationInput {
  double mass_kg_m2 = 0.0;        ///< m, of the single plate
  double leaf1_mass_kg_m2 = 0.0;  ///< m1
  double leaf2_mass_kg_m2 = 0.0;  ///< m2
  float thickness_mm = 0.0F;      ///< of the whole element
  float cavity_depth_mm = 0.0F;
  float fibre_thickness_mm = 0.0F;
  CavityKind cavity_kind = CavityKind::kEmpty;
  std::vector<ResilientLayer> resilient_layers{};
};

}  // namespace velmar::models
