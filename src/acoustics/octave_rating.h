#pragma once

#include <array>
#include <cstddef>

#include "acoustics/airborne_rating.h"
#include "acoustics/bands.h"

namespace velmar::acoustics {

/// The octave bands that a spectrum of one-third octaves holds: 63 Hz to 4000 Hz.
inline constexpr std::size_t kOctaveCount = 7;
inline constexpr std::array<double, kOctaveCount> kOctaveCentres = {63, 125, 250, 500, 1000, 2000, 4000};

/// One value in dB per octave band.
using OctaveSpectrum = std::array<double, kOctaveCount>;

/// The octave bands of `reduction_index` (dB): the mean of the transmitted energies of three one-third-octave
/// bands each (ISO 717-1, 4.2). Band i is centred on kOctaveCentres[i].
OctaveSpectrum OctavesOf(const Spectrum& reduction_index);

/// Rw in dB out of octave bands after ISO 717-1: reference 36, 45, 52, 55, 56 dB from 125 Hz to 2000 Hz,
/// shifted in whole dB as far up as the sum of the unfavourable deviations stays at 10.0 dB or below.
/// @throws ArithmeticFailure when a rated band is not a level that can be rated
double RateOctaves(const OctaveSpectrum& reduction_index);

/// The spectrum adaptation terms of ISO 717-1 in whole dB out of octave bands, 125 Hz to 2000 Hz, against the
/// rating `rw` (dB).
/// @throws ArithmeticFailure when a term is not a finite number
AdaptationTerms FindOctaveTerms(const OctaveSpectrum& reduction_index, double rw);

}  // namespace velmar::acoustics
