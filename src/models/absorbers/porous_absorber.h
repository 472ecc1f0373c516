#pragma once

#include <optional>

namespace velmar::models {

/// A homogeneous layer of fibres on a rigid wall.
struct PorousAbsorber {
  double flow_resistivity_pa_s_m2 = 0.0;  ///< Rs over thickness
  double thickness_m = 0.0;
};

/// What Delany and Bazley's regression gives at one frequency.
struct PredictedAbsorption {
  double coefficient = 0.0;  ///< 0 to 1, normal incidence
  /// Whether rho0 f / sigma lies where the regression was measured, 0.01 to 1; outside it is extrapolated.
  bool inside_range = false;
};

/// The absorption coefficient of `layer` at normal incidence: characteristic impedance and propagation
/// constant by Delany and Bazley, Applied Acoustics 3 (1970), the layer hard backed.
/// @return nothing where the regression gives none: without flow resistivity, thickness or frequency, and at
/// low frequencies outside its range, where it calls the layer a source
std::optional<PredictedAbsorption> AbsorptionOf(const PorousAbsorber& layer, double frequency_hz);

}  // namespace velmar::models
