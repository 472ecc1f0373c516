#pragma once

#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// 10 lg of each power ratio, in dB, at 1 to 6000 Hz; 0 at index 0.
/// @throws ArithmeticFailure when a ratio is not positive
HzSpectrum LevelsOf(const HzSpectrum& power_ratio);

/// 10^(R/10) of each level in dB, at 1 to 6000 Hz; 0 at index 0.
HzSpectrum PowerRatiosOf(const HzSpectrum& level_db);

}  // namespace velmar::models
