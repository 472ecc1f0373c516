#pragma once

#include "models/plates/loss_factor.h"

namespace velmar::models {

// Radiation factors of a rectangular plate in a baffle after EN ISO 12354-1, annex B. The standard's own air
// has 340 m/s; the speed is asked for because not every model breathes that air.

/// The radiation factor is never taken above this.
inline constexpr double kHighestRadiationFactor = 2.0;

/// sigma, the radiation factor of free bending waves (formulas B.4 to B.6), 0 to 2.
/// @param frequency_hz above 0
/// @param critical_frequency_hz of the plate, above 0
/// @param dimensions of the plate, both above 0
/// @param speed_of_sound_m_s of the air, above 0
double FreeWaveRadiation(double frequency_hz, double critical_frequency_hz, const PlateDimensions& dimensions,
                         double speed_of_sound_m_s);

/// sigma_f, the radiation factor of forced waves (formula B.3, after Sewell), at most 2 and never negative:
/// the formula is meant for k0 sqrt(S) above 1 and falls below zero far under it.
double ForcedWaveRadiation(double frequency_hz, const PlateDimensions& dimensions, double speed_of_sound_m_s);

}  // namespace velmar::models
