#pragma once

#include <vector>

#include "acoustics/bands.h"
#include "models/floors/resilient_mats.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

/// All that the airborne calculation of a floor with a floating screed reads.
struct FloatingScreedInput {
  std::vector<PlateLayer> slab{};
  std::vector<PlateLayer> screed{};
  std::vector<ResilientMat> resilient{};
  double side_a_m = 0.0;  ///< its sign is dropped, like that of the other side
  double side_b_m = 0.0;
};

/// The floor before its relation, which alone knows what the screed is good for.
struct FloatingScreedOutcome {
  acoustics::Spectrum reduction_index_db{};  ///< R
  double critical_frequency_hz = 0.0;
  double loss_factor = 0.0;  ///< internal, mean by thickness
  double mass_kg_m2 = 0.0;   ///< of slab and screed, without the resilient layers
  double bending_n_m = 0.0;
  double slab_mass_kg_m2 = 0.0;    ///< m1
  double screed_mass_kg_m2 = 0.0;  ///< m2
};

/// R of slab and screed summed into one plate, on the 10 Hz grid. The resilient layers weigh in the plate and
/// so in its critical frequency, but not in what it radiates or loses at the edges; no resonance of the
/// screed shows in the curve.
/// @throws ArithmeticFailure without thickness, mass, stiffness or sides, or when a value is not finite
FloatingScreedOutcome CalculateFloatingScreed(const FloatingScreedInput& input);

}  // namespace velmar::models
