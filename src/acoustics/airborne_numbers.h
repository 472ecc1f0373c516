#pragma once

#include <optional>

#include "acoustics/band_levels.h"

namespace velmar::acoustics {

/// Every single number of an airborne spectrum. One whose bands are not all there is absent.
struct AirborneNumbers {
  std::optional<double> rw{};         ///< ISO 717-1, whole dB, by FindShift()
  std::optional<double> rw_tenths{};  ///< Rw in steps of 0,1 dB, as ISO 12999-1 uses it
  std::optional<double> c{};          ///< terms of ISO 717-1 against `rw`, whole dB
  std::optional<double> ctr{};
  std::optional<double> c_50_3150{};
  std::optional<double> c_50_5000{};
  std::optional<double> c_100_5000{};
  std::optional<double> ctr_50_3150{};
  std::optional<double> ctr_50_5000{};
  std::optional<double> ctr_100_5000{};
  std::optional<double> stc{};   ///< sound transmission class, ASTM E413
  std::optional<double> oitc{};  ///< outdoor-indoor transmission class, ASTM E1332

  bool operator==(const AirborneNumbers&) const = default;
};

/// The single numbers of `reduction_index`.
///
/// How the levels are rounded. Rw, C and Ctr come from FindShift() and FindAdaptationTerms(), which take R
/// unrounded and stop strictly below 32 dB: they are the numbers that saved results and reports hold. All
/// others follow their standards to the letter: ISO 717-1 rounds R to 0,1 dB first, halves upward, allows a
/// sum of exactly 32,0 dB and rounds the weighted sum to whole decibels before Rw is taken off; ASTM E413
/// rounds to whole decibels and allows 8 dB in one band. Only where the sum of the deviations lies on the
/// limit itself, to within the rounding, may the two ways part: Rw is then 1 dB below the whole part of
/// `rw_tenths`. The terms are always counted from `rw`, so Rw + C50-5000 is the standard's weighted level
/// either way.
///
/// Rw in tenths: 100 Hz to 3150 Hz. STC: 125 Hz to 4000 Hz. OITC: 80 Hz to 4000 Hz, 100.13 dB less the
/// A-weighted level behind the element, rounded to a whole number.
///
/// @param reduction_index R in dB
/// @param rw the rating that the terms stand against, where a relation has settled another than that of the
/// spectrum; nothing for that of the spectrum
/// @throws ArithmeticFailure when a band from 100 Hz to 3150 Hz is not finite, or so far from any sound level
/// that no rating exists; other such bands count as missing
AirborneNumbers FindAirborneNumbers(const BandLevels& reduction_index, std::optional<double> rw = {});

}  // namespace velmar::acoustics
