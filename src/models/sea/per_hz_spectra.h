#pragma once

#include <array>
#include <cstddef>

#include "acoustics/bands.h"
#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// The absorption bands of a fibre, 100 Hz to 6300 Hz.
inline constexpr std::size_t kAbsorptionBandCount = 19;
using AbsorptionBands = std::array<double, kAbsorptionBandCount>;

/// A band value that stands for "not measured".
inline constexpr double kNoAbsorption = -1.0;

/// Nominal centre frequency of absorption band `band` (0 to 18) in Hz.
/// @throws std::out_of_range beyond 18
double AbsorptionBandFrequency(std::size_t band);

/// Absorption coefficient per Hz, 0 to 6000 Hz: straight lines between the band centres, whose values are
/// limited to 0.99; below 100 Hz the line through the origin and the value itself.
HzSpectrum SeaAbsorptionPerHz(const AbsorptionBands& absorption);

/// Levels per Hz, 0 to 5000 Hz: straight lines between the band centres; below 50 Hz the line through the
/// origin, above 5000 Hz zero.
HzSpectrum SeaSpectrumPerHz(const acoustics::Spectrum& spectrum);

}  // namespace velmar::models
