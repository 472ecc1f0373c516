#include "models/sea/power_ratio.h"

#include <cmath>

#include "acoustics/logarithm.h"

namespace velmar::models {

HzSpectrum LevelsOf(const HzSpectrum& power_ratio) {
  HzSpectrum level_db{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) level_db[f] = 10.0 * acoustics::Log10(power_ratio[f]);
  return level_db;
}

HzSpectrum PowerRatiosOf(const HzSpectrum& level_db) {
  const double nepers = std::log(10.0) / 10.0;
  HzSpectrum ratio{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) ratio[f] = std::exp(level_db[f] * nepers);
  return ratio;
}

}  // namespace velmar::models
