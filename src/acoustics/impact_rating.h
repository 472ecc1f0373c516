#pragma once

#include <array>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// The impact reference curve of ISO 717-2 relative to 0 dB at its low end, 100 Hz to 3150 Hz.
inline constexpr std::array<double, kRatedBandCount> kImpactReference = {0,  0,  0,  0,  0,   0,   -1,  -2,
                                                                         -3, -4, -5, -8, -11, -14, -17, -20};

/// Shift X of the impact reference curve in whole dB, after ISO 717-2.
///
/// The search begins well below the curve, only goes up, one decibel at a time, and ends when the sum of the
/// unfavourable deviations (levels above the curve) is below 32.0 dB; a sum of exactly 32.0 goes on.
///
/// @param impact_level Ln in dB per band; only 100 Hz to 3150 Hz take part
/// @return X, so that Ln,w = ImpactRatingOfShift(X)
/// @throws ArithmeticFailure when a rated band is not finite, or so far from any sound level that no shift
/// exists
double FindImpactShift(const Spectrum& impact_level);

/// Ln,w in dB of the reference curve shifted by `shift`: its value at 500 Hz, two decibels below its low end.
double ImpactRatingOfShift(double shift);

/// The spectrum adaptation term Ci of ISO 717-2 in whole dB, ties to even: the level sum from 100 Hz to 3150
/// Hz, less 15, less `lnw` (dB).
/// @throws ArithmeticFailure when the term is not a finite number
double FindImpactAdaptationTerm(const Spectrum& impact_level, double lnw);

}  // namespace velmar::acoustics
