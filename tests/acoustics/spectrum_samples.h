#pragma once

#include <cstddef>
#include <initializer_list>

#include "acoustics/band_levels.h"

namespace velmar::acoustics {

inline constexpr std::size_t k80Hz = 2;
inline constexpr std::size_t k100Hz = 3;
inline constexpr std::size_t k125Hz = 4;
inline constexpr std::size_t k500Hz = 10;

/// `values` from band `first_band` on; the other bands are missing.
inline BandLevels LevelsFrom(std::size_t first_band, std::initializer_list<double> values) {
  BandLevels levels{};
  for (const double value : values) levels.at(first_band++) = value;
  return levels;
}

inline BandLevels Flat(double level) {
  BandLevels levels{};
  levels.fill(level);
  return levels;
}

/// Every level that is there, moved by `shift_db`.
inline BandLevels Moved(BandLevels levels, double shift_db) {
  for (std::optional<double>& level : levels) {
    if (level) *level += shift_db;
  }
  return levels;
}

/// Test TL-93-185 of NRC Canada, internal report IR-761 (1998): a light double wall, 50 Hz to 5000 Hz.
inline BandLevels LightWall() {
  return LevelsFrom(0, {18.9, 13.5, 17.7, 15.7, 20.5, 28.6, 36.4, 43.7, 48.5, 54.0, 57.2,
                        61.0, 64.0, 67.0, 69.4, 70.0, 66.8, 55.4, 52.7, 56.0, 61.0});
}

}  // namespace velmar::acoustics
