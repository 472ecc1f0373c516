#pragma once

#include <array>
#include <cstddef>

namespace velmar::acoustics {

inline constexpr std::size_t kBandCount = 21;

/// One value in dB per one-third-octave band, index 0 = 50 Hz to 20 = 5000 Hz, unrounded. An index always
/// holds a number.
using Spectrum = std::array<double, kBandCount>;

/// The bands that take part in a rating: 100 Hz to 3150 Hz.
inline constexpr std::size_t kFirstRatedBand = 3;
inline constexpr std::size_t kLastRatedBand = 18;
inline constexpr std::size_t kRatedBandCount = kLastRatedBand - kFirstRatedBand + 1;

/// Nominal centre frequency of band `band` (0 to 20) in Hz.
/// @throws std::out_of_range beyond 20
double BandCentre(std::size_t band);

/// Upper edge of band `band` (0 to 20) in Hz; a band begins where the one before it ended. The last edge,
/// 4999 Hz, stands below its own centre on purpose: it closes the band at the end of the 10 Hz grid.
/// @throws std::out_of_range beyond 20
double BandUpperEdge(std::size_t band);

}  // namespace velmar::acoustics
