#include "measurements/octave_steps.h"

#include <algorithm>
#include <cstddef>

namespace velmar::measurements {
namespace {

using Bands = std::array<std::optional<double>, acoustics::kBandCount>;

constexpr std::size_t kThirdsInAnOctave = 3;

}  // namespace

Bands OctaveSteps(const storage::MeasuredTest& test) {
  Bands steps;
  for (std::size_t band = 0; band < steps.size(); ++band)
    steps.at(band) = test.octaves.at(band / kThirdsInAnOctave);
  return steps;
}

std::optional<Bands> ThirdsFromOctaves(const storage::LibraryFolder& folder,
                                       const storage::MeasuredTest& test) {
  const bool airborne = folder.band_prefix == "R" || folder.band_prefix == "Dn";
  const bool has_thirds =
      std::ranges::any_of(test.bands, [](const std::optional<double>& value) { return value.has_value(); });
  if (!airborne || has_thirds) return std::nullopt;
  const Bands steps = OctaveSteps(test);
  for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
    if (!steps.at(band)) return std::nullopt;
  }
  return steps;
}

}  // namespace velmar::measurements
