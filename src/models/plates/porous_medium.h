#pragma once

#include "foundation/wide_vectors.h"

namespace velmar::models {

/// A porous medium seen through its flow resistivity, after Delany and Bazley.
struct PorousMedium {
  double impedance_real = 0.0;  ///< characteristic impedance over that of air
  double impedance_imag = 0.0;
  double tangent_real = 0.0;  ///< tan(a + jb) of the complex phase through the layer
  double tangent_imag = 0.0;
};

/// The medium at `x`, density of the air times frequency over flow resistivity, in a layer through which
/// `phase` radians of a wave in air would pass. `Functions` has Log, Exp and Tan: the library's for one
/// frequency, those of the lanes for several side by side.
template <typename Functions>
VELMAR_LANE_FUNCTION PorousMedium PorousMediumOf(double x, double phase) {
  const double log_x = Functions::Log(x);
  // The attenuation has no addition of 1, unlike the phase.
  const double tan_a = Functions::Tan(phase * (1.0 + 0.0978 * Functions::Exp(-0.7 * log_x)));
  const double attenuation = phase * (0.189 * Functions::Exp(-0.595 * log_x));
  // The hyperbolic tangent out of exponentials: too large an argument gives no number, so that an absurd
  // layer ends the run instead of passing for a blocked one.
  const double falling = Functions::Exp(-attenuation);
  const double rising = Functions::Exp(attenuation);
  const double tanh_b = (falling - rising) / (falling + rising);
  // tan(a + jb) = (tan a + j tanh b) / (1 - j tan a tanh b)
  const double product = tan_a * tanh_b;
  const double divisor = 1.0 + product * product;
  PorousMedium medium;
  medium.impedance_real = 1.0 + 0.0571 * Functions::Exp(-0.754 * log_x);
  medium.impedance_imag = -0.087 * Functions::Exp(-0.732 * log_x);
  medium.tangent_real = tan_a * (1.0 - tanh_b * tanh_b) / divisor;
  medium.tangent_imag = tanh_b * (1.0 + tan_a * tan_a) / divisor;
  return medium;
}

}  // namespace velmar::models
