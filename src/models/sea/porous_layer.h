#pragma once

#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// One porous fill of a cavity. Without its layer the other fields are not read.
struct SeaPorousLayer {
  bool is_present = false;
  double thickness_m = 0.0;
  double density_kg_m3 = 0.0;
};

/// Attenuation of a fill in dB at 1 to 6000 Hz: what it absorbs beside what its mass holds back. A fill that
/// is absent still attenuates a little, -10 lg 0.98.
///
/// A frequency whose absorption coefficient is 1 or more takes that of the frequency below.
/// @throws ArithmeticFailure when the fill has no mass, or a coefficient of 1 or more has none below it
HzSpectrum SeaPorousLayerAttenuation(const SeaPorousLayer& layer, const HzSpectrum& absorption);

/// SeaPorousLayerAttenuation() as power ratio, multiplied onto `power_ratio`. May limit `absorption`.
void MultiplyPorousLayer(const SeaPorousLayer& layer, HzSpectrum& absorption, HzSpectrum& power_ratio);

}  // namespace velmar::models
