#pragma once

#include <cstddef>
#include <span>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// The 10 Hz grid: 40, 50, ... 4990 Hz, point n at 40 + 10 n.
inline constexpr double kFineGridStep = 10.0;
inline constexpr double kFineGridStart = 40.0;
inline constexpr std::size_t kFineGridPoints = 496;

/// Frequency in Hz of point `point` (0 to 495) of the 10 Hz grid.
constexpr double FineGridFrequency(std::size_t point) {
  return kFineGridStart + kFineGridStep * static_cast<double>(point);
}

/// The 21 band values of a 10 Hz grid that begins at `first_frequency_hz`: each band is the arithmetic mean
/// in decibels (not in energy) of the points that lie strictly below its upper edge and above the band
/// before.
/// @param fine_values one value in dB a grid point; points beyond the last band edge are not read
/// @throws std::invalid_argument when the values end before the last band is full
Spectrum AverageIntoBands(std::span<const double> fine_values, double first_frequency_hz);

/// AverageIntoBands() of the grid that begins at 40 Hz.
Spectrum FineGridToBands(std::span<const double, kFineGridPoints> fine_values);

}  // namespace velmar::acoustics
