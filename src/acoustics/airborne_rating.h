#pragma once

#include <array>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// The airborne reference curve of ISO 717-1 relative to 0 dB at its top, 100 Hz to 3150 Hz.
inline constexpr std::array<double, kRatedBandCount> kAirborneReference = {
    -23, -20, -17, -14, -11, -8, -5, -4, -3, -2, -1, 0, 0, 0, 0, 0};

/// Shift X of the airborne reference curve in whole dB, after ISO 717-1.
///
/// The search begins about two decibels above the level at which the mean deviation vanishes, only goes down,
/// one decibel at a time, and ends when the sum of the unfavourable deviations from 100 Hz to 3150 Hz is
/// below 32.0 dB. A sum of exactly 32.0 goes on, although the standard allows it: saved ratings depend on
/// this.
///
/// @param reduction_index R in dB per band; only 100 Hz to 3150 Hz take part
/// @return X, so that Rw = RatingOfShift(X)
/// @throws ArithmeticFailure when a rated band is not finite, or so far from any sound level that no shift
/// exists
double FindShift(const Spectrum& reduction_index);

/// Rw in dB of the reference curve shifted by `shift`: its value at 500 Hz.
double RatingOfShift(double shift);

/// The spectrum adaptation terms of ISO 717-1 in whole dB, ties to even.
struct AdaptationTerms {
  double c = 0.0;    ///< pink noise (spectrum no. 1)
  double ctr = 0.0;  ///< road traffic (spectrum no. 2)
};

/// The adaptation terms of `reduction_index` (dB) against the rating `rw` (dB), over 100 Hz to 3150 Hz.
/// @throws ArithmeticFailure when a term is not a finite number
AdaptationTerms FindAdaptationTerms(const Spectrum& reduction_index, double rw);

}  // namespace velmar::acoustics
