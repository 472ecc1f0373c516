#pragma once

#include <array>

#include "acoustics/bands.h"

namespace velmar::acoustics {

/// A-weighted pink noise, whose levels add up to 0 dB: spectrum no. 1 of ISO 717-1, 100 Hz to 3150 Hz, dB.
inline constexpr std::array<double, kRatedBandCount> kPinkNoise = {-29, -26, -23, -21, -19, -17, -15, -13,
                                                                   -12, -11, -10, -9,  -9,  -9,  -9,  -9};

}  // namespace velmar::acoustics
