#pragma once

#include "acoustics/bands.h"

namespace velmar::models {

/// What an energy balance of a wall comes to; the caller rates it.
struct SeaWallOutcome {
  acoustics::Spectrum reduction_index_db{};
  double critical_frequency_hz = 0.0;  ///< `Fc`: the highest of all layers
  double surface_mass_kg_m2 = 0.0;     ///< `Mass`: of all layers with their damping sheets
  double loss_factor = 0.0;            ///< `EtaInt`: weighted by thickness over the total thickness
};

}  // namespace velmar::models
