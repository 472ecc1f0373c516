#pragma once

#include "acoustics/bands.h"
#include "models/sea/lining.h"

namespace velmar::models {

/// The rating of a base element with its lining, whole dB.
struct LiningRating {
  double shift = 0.0;     ///< `X` of the improved spectrum
  double rw = 0.0;        ///< of the base element with its lining
  double delta_rw = 0.0;  ///< what the lining adds
  double c = 0.0;         ///< against the rating without the improvement
  double ctr = 0.0;       ///< against the rating without the improvement
};

/// Rating of an improved spectrum after ISO 717-1 and its improvement over the base element. The adaptation
/// terms stand against the rating less the improvement.
/// @throws ArithmeticFailure when the spectrum cannot be rated
LiningRating RateLining(const acoustics::Spectrum& reduction_index_db, float base_rw_db);

/// Improvement in dB, not rounded, that a lining promises by its mass-spring-mass resonance:
/// 72 - (20 lg f0 + Rw / 2), with f0 = 160 sqrt((1 / m' + 1 / m) (0.111 / d)) in single precision (EN
/// 12354-1).
/// @throws ArithmeticFailure when the depth or the resonance is not above 0
double GenericLiningImprovement(float lining_mass_kg_m2, float base_mass_kg_m2, float depth_m,
                                float base_rw_db);

/// Rating of a generic variant; it has no spectrum, no shift and no adaptation terms.
/// @throws ArithmeticFailure when the depth or the resonance is not above 0
/// @throws std::invalid_argument for the other variants and when CheckLining() has an objection
LiningRating RateGenericLining(const LiningInput& input);

}  // namespace velmar::models
