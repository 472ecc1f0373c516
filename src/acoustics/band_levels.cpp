#include "acoustics/band_levels.h"

#include <algorithm>

namespace velmar::acoustics {

BandLevels LevelsOf(const Spectrum& spectrum) {
  BandLevels levels{};
  std::copy(spectrum.begin(), spectrum.end(), levels.begin());
  return levels;
}

std::optional<Spectrum> RatedSpectrum(const BandLevels& levels) {
  Spectrum spectrum{};
  for (std::size_t band = kFirstRatedBand; band <= kLastRatedBand; ++band) {
    if (!levels[band]) return std::nullopt;
    spectrum[band] = *levels[band];
  }
  return spectrum;
}

}  // namespace velmar::acoustics
