#include "models/plates/impedance.h"

#include <cmath>
#include <complex>
#include <string>

#include "acoustics/constants.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

using acoustics::kAirDensity;
using acoustics::kAirImpedance;
using acoustics::kSpeedOfSound;
using acoustics::kTwoPi;

/// Hyperbolic tangent out of exponentials. Too large an argument gives no number, so that an absurd layer
/// ends the run instead of passing for a blocked one.
double Tanh(double x) {
  const double rising = std::exp(x);
  const double falling = std::exp(-x);
  return (rising - falling) / (rising + falling);
}

/// B (k sin theta)^4 / omega, the stiffness part of a plate's impedance.
double StiffnessTerm(double frequency_hz, double theta, const Plate& plate) {
  const double omega = kTwoPi * frequency_hz;
  const double trace = omega / kSpeedOfSound * std::sin(theta);
  return plate.bending_n_m * ((trace * trace) * (trace * trace)) / omega;
}

std::complex<double> CavityImpedance(double frequency_hz, double theta, const Cavity& cavity) {
  const PorousMedium medium = FindPorousMedium(frequency_hz, cavity);
  const double kd = kTwoPi * frequency_hz / kSpeedOfSound * cavity.depth_m;
  const double c = -std::cos(kd) / std::cos(theta);
  const double s = std::sin(kd);
  const std::complex<double> zc(medium.impedance_real, medium.impedance_imag);
  const std::complex<double> t(medium.tangent_real, medium.tangent_imag);
  const std::complex<double> j(0.0, 1.0);
  return kAirImpedance * (j * zc * (c + s * zc * t)) / (zc * s - c * t);
}

}  // namespace

double AirImpedance(double theta) { return kAirImpedance / std::cos(theta); }

double PlateImag(double frequency_hz, double theta, const Plate& plate) {
  return kTwoPi * frequency_hz * plate.mass_kg_m2 - StiffnessTerm(frequency_hz, theta, plate);
}

double PlateReal(double frequency_hz, double theta, const Plate& plate) {
  return plate.loss_factor * StiffnessTerm(frequency_hz, theta, plate);
}

PorousMedium FindPorousMedium(double frequency_hz, const Cavity& cavity) {
  if (!(cavity.flow_resistivity_pa_s_m2 > 0.0)) {
    throw ArithmeticFailure(kInvalidFlowResistivityRow,
                            "the flow resistivity is " + std::to_string(cavity.flow_resistivity_pa_s_m2));
  }
  const double x = kAirDensity / cavity.flow_resistivity_pa_s_m2 * frequency_hz;
  const double log_x = std::log(x);
  const double phase = kTwoPi * frequency_hz * cavity.porous_thickness_m / kSpeedOfSound;
  // The attenuation has no addition of 1, unlike the phase.
  const double tan_a = std::tan(phase * (1.0 + 0.0978 * std::exp(-0.7 * log_x)));
  const double tanh_b = Tanh(-phase * (0.189 * std::exp(-0.595 * log_x)));
  // tan(a + jb) = (tan a + j tanh b) / (1 - j tan a tanh b)
  const double product = tan_a * tanh_b;
  const double divisor = 1.0 + product * product;
  PorousMedium medium;
  medium.impedance_real = 1.0 + 0.0571 * std::exp(-0.754 * log_x);
  medium.impedance_imag = -0.087 * std::exp(-0.732 * log_x);
  medium.tangent_real = tan_a * (1.0 - tanh_b * tanh_b) / divisor;
  medium.tangent_imag = tanh_b * (1.0 + tan_a * tan_a) / divisor;
  return medium;
}

double CavityImag(double frequency_hz, double theta, const Cavity& cavity) {
  return CavityImpedance(frequency_hz, theta, cavity).imag();
}

double CavityReal(double frequency_hz, double theta, const Cavity& cavity) {
  return CavityImpedance(frequency_hz, theta, cavity).real();
}

}  // namespace velmar::models
