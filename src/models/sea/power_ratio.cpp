#include "models/sea/power_ratio.h"

#include <cmath>

#include "acoustics/logarithm.h"
#include "foundation/lane_functions.h"
#include "foundation/wide_vectors.h"

namespace velmar::models {

HzSpectrum LevelsOf(const HzSpectrum& power_ratio) {
  HzSpectrum level_db{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) level_db[f] = 10.0 * acoustics::Log10(power_ratio[f]);
  return level_db;
}

VELMAR_WIDE_VECTORS HzSpectrum PowerRatiosOf(const HzSpectrum& level_db) {
  constexpr double kNepers = 0.23025850929940458;  // ln 10 / 10
  // Beyond them a ratio is no ordinary number, and the library says what it is.
  constexpr double kLargestDb = 3000.0;
  HzSpectrum ratio{};
  double largest = 0.0;
#pragma omp simd reduction(max : largest)
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    const double size = std::abs(level_db[f]);
    largest = size > largest ? size : largest;
    ratio[f] = LaneExp(level_db[f] * kNepers);
  }
  if (largest < kLargestDb) return ratio;
  for (std::size_t f = 1; f <= kHighestHz; ++f) ratio[f] = std::exp(level_db[f] * kNepers);
  return ratio;
}

}  // namespace velmar::models
