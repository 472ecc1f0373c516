#pragma once

#include <array>
#include <optional>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// Levels in dB of which some may be missing.
using BandLevels = std::array<std::optional<double>, kBandCount>;

/// Every band of `spectrum`.
BandLevels LevelsOf(const Spectrum& spectrum);

/// The bands from 100 Hz to 3150 Hz of `levels`, the others 0; nothing when one of them is missing.
std::optional<Spectrum> RatedSpectrum(const BandLevels& levels);

}  // namespace velmar::acoustics
