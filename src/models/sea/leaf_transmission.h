#pragma once

#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// What the balance room - leaf - room needs besides the radiation efficiency.
struct SeaLeaf {
  double longitudinal_speed_m_s = 0.0;
  double surface_mass_kg_m2 = 0.0;
  double thickness_m = 0.0;
  double loss_factor = 0.0;  ///< internal
};

/// Sound reduction index of one leaf in dB at 1 to 6000 Hz: the energy balance between two rooms with the
/// resonant and the mass-controlled path, between 0 dB and the field-incidence mass law (5 dB below normal
/// incidence).
/// @param radiation_efficiency of the leaf, 1 to 6000 Hz
/// @throws ArithmeticFailure when the balance is not a positive finite number at some frequency
HzSpectrum SeaLeafTransmission(const HzSpectrum& radiation_efficiency, const SeaLeaf& leaf);

/// SeaLeafTransmission() as power ratio, 1 or more.
void SeaLeafPowerRatio(const HzSpectrum& radiation_efficiency, const SeaLeaf& leaf, HzSpectrum& power_ratio);

}  // namespace velmar::models
