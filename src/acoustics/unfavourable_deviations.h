#pragma once

#include <array>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// Which side of a reference curve is unfavourable: below for airborne sound insulation (ISO 717-1), above
/// for impact sound levels (ISO 717-2).
enum class Unfavourable { kBelow, kAbove };

/// The sum of unfavourable deviations that a rating stays below, dB.
inline constexpr double kAllowedDeviationDb = 32.0;

using Deviations = std::array<double, kRatedBandCount>;

/// How far `levels` (dB) lie on the unfavourable side of `reference` shifted by `shift` (dB), from 100 Hz to
/// 3150 Hz; 0 in a band on the favourable side or on the curve.
Deviations UnfavourableDeviations(const Spectrum& levels,
                                  const std::array<double, kRatedBandCount>& reference, double shift,
                                  Unfavourable side);

/// The sum of `deviations` in dB, from 100 Hz upwards.
double SumOf(const Deviations& deviations);

}  // namespace velmar::acoustics
