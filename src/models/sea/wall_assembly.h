#pragma once

#include "models/sea/band_average.h"
#include "models/sea/cavity.h"

namespace velmar::models {

/// Whether a cavity is deep enough to be calculated: more than 1 mm.
constexpr bool IsCavityDeepEnough(double depth_m) { return depth_m > 0.001; }

/// Adds the power that the cavity's mass layers hold back, if there are any, to a side.
void AddExtraPower(const SeaCavityPower& cavity, HzSpectrum& side_power);

/// Power ratio of two sides and their cavity; up to the resonance of `masses` their mass law.
/// @throws ArithmeticFailure when two masses have no distance
HzSpectrum TotalPower(const HzSpectrum& first_side, const HzSpectrum& second_side,
                      const SeaCavityPower& cavity, const SeaMassPair& masses);

}  // namespace velmar::models
