#include "models/layered/connection.h"

#include <cmath>
#include <complex>
#include <numbers>

#include "models/layered/air.h"
#include "models/plates/free_wave_radiation.h"

namespace velmar::models {
namespace {

using Complex = std::complex<double>;

/// Velocity per force of an infinite plate, driven along a line (per metre) or at a point.
Complex Mobility(ConnectionKind kind, const LeafProperties& leaf, double omega) {
  const double bending = leaf.free_bending_n_m;
  if (kind == ConnectionKind::kPoint) return 1.0 / (8.0 * std::sqrt(bending * leaf.mass_kg_m2));
  const double wave_speed = std::sqrt(omega) * std::pow(bending / leaf.mass_kg_m2, 0.25);
  return 1.0 / (2.0 * leaf.mass_kg_m2 * wave_speed * Complex(1.0, 1.0));
}

/// Power that a unit of force squared makes `leaf` radiate, near field and free waves.
double RadiatedPower(ConnectionKind kind, const LeafProperties& leaf, double frequency_hz,
                     const PlateDimensions& dimensions) {
  const double omega = 2.0 * std::numbers::pi * frequency_hz;
  const double mass = leaf.mass_kg_m2;
  double near_field = 0.0;
  if (frequency_hz < leaf.critical_frequency_hz) {
    near_field = kind == ConnectionKind::kLine
                     ? kLayeredAirDensity / (2.0 * omega * mass * mass)
                     : kLayeredAirDensity / (2.0 * std::numbers::pi * kLayeredSpeedOfSound * mass * mass);
  }
  const double sigma =
      FreeWaveRadiation(frequency_hz, leaf.critical_frequency_hz, dimensions, kLayeredSpeedOfSound);
  const double losses =
      LeafLossFactor(leaf, frequency_hz) + 2.0 * kLayeredAirImpedance * sigma / (omega * mass);
  return near_field +
         kLayeredAirImpedance * sigma * Mobility(kind, leaf, omega).real() / (omega * mass * losses);
}

}  // namespace

double ConnectionTransmission(const Connection& connection, const LeafProperties& first,
                              const LeafProperties& second, double frequency_hz,
                              const PlateDimensions& dimensions) {
  const double omega = 2.0 * std::numbers::pi * frequency_hz;
  const Complex mobility = Mobility(connection.kind, first, omega) +
                           Mobility(connection.kind, second, omega) +
                           Complex(0.0, omega * connection.compliance);
  const auto one_way = [&](const LeafProperties& from, const LeafProperties& to) {
    const double inertia = omega * from.mass_kg_m2;
    const double force_squared = 2.0 / (inertia * inertia) / std::norm(mobility);
    return force_squared * RadiatedPower(connection.kind, to, frequency_hz, dimensions);
  };
  return 4.0 * kLayeredAirImpedance * connection.density * 0.5 *
         (one_way(first, second) + one_way(second, first));
}

}  // namespace velmar::models
