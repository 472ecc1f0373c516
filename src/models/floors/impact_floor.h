#pragma once

#include <vector>

#include "acoustics/bands.h"
#include "acoustics/constructions.h"
#include "foundation/message.h"
#include "models/floors/resilient_mats.h"
#include "models/floors/screed_improvement.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

using acoustics::ImpactFloorVariant;

/// All that the impact sound calculation reads.
struct ImpactFloorInput {
  ImpactFloorVariant variant = ImpactFloorVariant::kFloatingFloor;
  std::vector<PlateLayer> bearing{};
  std::vector<PlateLayer> screed{};
  std::vector<ResilientMat> resilient{};
  double side_a_m = 0.0;  ///< its sign is dropped, like that of the other side
  double side_b_m = 0.0;
};

/// The floor before any relation is applied.
struct ImpactFloorOutcome {
  acoustics::Spectrum impact_level_db{};     ///< Ln of the floor without the improvement of the screed
  acoustics::Spectrum reduction_index_db{};  ///< R
  ScreedImprovement improvement{};
  double critical_frequency_hz = 0.0;
  double loss_factor = 0.0;  ///< of the bearing layers alone, mean by thickness
  double mass_kg_m2 = 0.0;   ///< M, of the slab; a screed that does not float counts as part of it
  double bearing_thickness_m = 0.0;
};

/// Ln and R of the floor per band. The slab is one thin plate: radiation factor and losses below, around and
/// above its critical frequency, Ln from mass, structural reverberation time and radiation (EN 12354-2,
/// annex B; radiation below the critical frequency after Maidanik). Without a resilient layer the screed is
/// part of the plate, under one the plate is the bearing structure alone.
/// @throws ArithmeticFailure when thickness, mass, stiffness, sides or loss factors lead to a division by
/// zero, a logarithm of a non-positive number or a level that is not finite
ImpactFloorOutcome CalculateImpactFloor(const ImpactFloorInput& input);

}  // namespace velmar::models
