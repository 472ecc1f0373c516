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

struct LibraryFunctions {
  static double Log(double x) { return std::log(x); }
  static double Exp(double x) { return std::exp(x); }
  static double Tan(double x) { return std::tan(x); }
};

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
  const double phase = kTwoPi * frequency_hz * cavity.porous_thickness_m / kSpeedOfSound;
  return PorousMediumOf<LibraryFunctions>(x, phase);
}

double CavityImag(double frequency_hz, double theta, const Cavity& cavity) {
  return CavityImpedance(frequency_hz, theta, cavity).imag();
}

double CavityReal(double frequency_hz, double theta, const Cavity& cavity) {
  return CavityImpedance(frequency_hz, theta, cavity).real();
}

}  // namespace velmar::models
