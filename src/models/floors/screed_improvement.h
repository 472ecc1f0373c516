#pragma once

#include "acoustics/bands.h"

namespace velmar::models {

/// What a floating screed takes from the impact level of its floor.
struct ScreedImprovement {
  double resonance_hz = 0.0;       ///< f0 of the screed on the resilient layer; 0 without one
  acoustics::Spectrum delta_db{};  ///< 30 lg(f / f0), negative below the resonance; 0 without one
  double delta_lnw_db = 0.0;       ///< weighted, unrounded
};

/// The improvement by a screed of `screed_mass_kg_m2` on resilient layers of `stiffness_mn_m3` in all, after
/// EN 12354-2, annex C, with f0 = 160 sqrt(s' / m') and 15 lg(m' / s') + 18 as its weighted value. None when
/// either is 0.
/// @throws ArithmeticFailure when either is negative or a value is not finite
ScreedImprovement FindScreedImprovement(double screed_mass_kg_m2, double stiffness_mn_m3);

}  // namespace velmar::models
