#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "acoustics/band_levels.h"

namespace velmar::acoustics {

/// Levels or a reference contour in 16 neighbouring bands, in whole steps of 1 dB or of 0,1 dB.
inline constexpr std::size_t kContourBandCount = 16;
using ContourSteps = std::array<long, kContourBandCount>;

/// `level_db` in whole steps, `steps_per_db` to the decibel; halves go up, as ISO 717-1 and ASTM E413 have it
/// for one decimal and for whole decibels. Not meant beyond 1e6 dB.
long StepsOf(double level_db, int steps_per_db);

/// The 16 bands from `first_band` on in steps; nothing when one is missing or is no sound level (not finite,
/// or beyond 1e6 dB).
std::optional<ContourSteps> StepsFrom(const BandLevels& levels, std::size_t first_band, int steps_per_db);

/// `contour_db`, in whole decibels, in steps.
ContourSteps InSteps(const ContourSteps& contour_db, int steps_per_db);

/// How far values may fall short of a contour, both inclusive, in steps.
struct AllowedDeficiency {
  long sum = 0;                  ///< over all bands
  std::optional<long> single{};  ///< in one band; nothing where the standard sets no such limit
};

/// The greatest shift of `contour` in steps at which the deficiencies of `values` (contour above value) stay
/// within `allowed`. For levels that a contour bounds from above, turn the sign of all three.
long HighestShift(const ContourSteps& contour, const ContourSteps& values, const AllowedDeficiency& allowed);

}  // namespace velmar::acoustics
