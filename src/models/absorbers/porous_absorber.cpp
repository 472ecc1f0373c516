#include "models/absorbers/porous_absorber.h"

#include <cmath>
#include <complex>

#include "acoustics/constants.h"

namespace velmar::models {
namespace {

using Complex = std::complex<double>;

constexpr double kLowestX = 0.01;
constexpr double kHighestX = 1.0;

}  // namespace

std::optional<PredictedAbsorption> AbsorptionOf(const PorousAbsorber& layer, double frequency_hz) {
  const double sigma = layer.flow_resistivity_pa_s_m2;
  const bool has_values = sigma > 0.0 && layer.thickness_m > 0.0 && frequency_hz > 0.0;
  if (!has_values) return std::nullopt;
  const double x = acoustics::kAirDensity * frequency_hz / sigma;
  const Complex impedance(1.0 + 0.0571 * std::pow(x, -0.754), -0.087 * std::pow(x, -0.732));
  const double free_wave_number = acoustics::kTwoPi * frequency_hz / acoustics::kSpeedOfSound;
  const Complex wave_number =
      free_wave_number * Complex(1.0 + 0.0978 * std::pow(x, -0.7), -0.189 * std::pow(x, -0.595));
  // -j zc cot(k d), relative to the impedance of air.
  const Complex surface = Complex(0.0, -1.0) * impedance / std::tan(wave_number * layer.thickness_m);
  const double coefficient = 1.0 - std::norm((surface - 1.0) / (surface + 1.0));
  if (!std::isfinite(coefficient) || coefficient < 0.0) return std::nullopt;
  return PredictedAbsorption{coefficient, x >= kLowestX && x <= kHighestX};
}

}  // namespace velmar::models
