#pragma once

#include <optional>

#include "acoustics/band_levels.h"

namespace velmar::acoustics {

/// Every single number of an impact sound spectrum. One whose bands are not all there is absent.
struct ImpactNumbers {
  std::optional<double> lnw{};         ///< ISO 717-2, whole dB, by FindImpactShift()
  std::optional<double> ci{};          ///< ISO 717-2, 100 Hz to 2500 Hz, whole dB
  std::optional<double> ci_50_2500{};  ///< ISO 717-2, 50 Hz to 2500 Hz, whole dB
  std::optional<double> iic{};         ///< impact insulation class, ASTM E989

  bool operator==(const ImpactNumbers&) const = default;
};

/// The single numbers of `impact_level`.
///
/// Ln,w comes from FindImpactShift(), unrounded levels and a stop strictly below 32 dB: it is the number that
/// saved results and reports hold. The terms follow ISO 717-2: levels rounded to 0,1 dB, halves upward,
/// summed in energy, the sum rounded to a whole decibel, less 15, less Ln,w. CI ends at 2500 Hz, as the
/// standard has it; FindImpactAdaptationTerm(), whose term the calculations show, sums 3150 Hz as well and
/// stands higher where the levels rise up to there. IIC: 100 Hz to 3150 Hz in whole decibels, a sum of at
/// most 32 dB and at most 8 dB in one band, 110 less the contour at 500 Hz.
///
/// @param impact_level Ln in dB
/// @throws ArithmeticFailure when a band from 100 Hz to 3150 Hz is not finite, or so far from any sound level
/// that no rating exists; other such bands count as missing
ImpactNumbers FindImpactNumbers(const BandLevels& impact_level);

/// Delta Lw in whole dB of a topping that takes `improvement` from a floor (ISO 717-2, clause 5): 78 dB less
/// the rating of the standard's reference floor with the topping, levels rounded to 0,1 dB and a sum of at
/// most 32,0 dB. Nothing when a band from 100 Hz to 3150 Hz is missing or no level.
std::optional<double> WeightedImpactImprovement(const BandLevels& improvement);

}  // namespace velmar::acoustics
