#include "models/layered/cavity.h"

#include <cmath>
#include <numbers>

#include "models/layered/air.h"

namespace velmar::models {
namespace {

using Complex = std::complex<double>;

constexpr double kFramedLossFactor = 0.10;
constexpr double kEdgeAbsorption = 0.5;
constexpr double kStaticPressurePa = 101320.0;

}  // namespace

EquivalentFluid FillFluid(const CavityFill& fill, double frequency_hz, double edge_loss_factor) {
  constexpr double rho0 = kLayeredAirDensity;
  if (fill.kind == FillKind::kAir) {
    return {rho0, rho0 * kLayeredSpeedOfSound * kLayeredSpeedOfSound * Complex(1.0, edge_loss_factor)};
  }
  const double x = rho0 * frequency_hz / fill.flow_resistivity_pa_s_m2;
  const Complex rigid = rho0 * (1.2 + std::sqrt(Complex(-0.0364 / (x * x), -0.1144 / x)));
  const Complex thermal = std::sqrt(Complex(2.82 / (x * x), 24.9 / x));
  const Complex modulus =
      kStaticPressurePa * (Complex(0.0, 29.64) + thermal) / (Complex(0.0, 21.17) + thermal);
  const double frame = fill.density_kg_m3 + rho0;
  const Complex limp = (frame * rigid - rho0 * rho0) / (frame + rigid - 2.0 * rho0);
  return {limp, modulus};
}

double EdgeLossFactor(CavityEdge edge, double frequency_hz, double area_m2, double perimeter_m) {
  if (edge == CavityEdge::kFramed) return kFramedLossFactor;
  const double omega = 2.0 * std::numbers::pi * frequency_hz;
  return kEdgeAbsorption * kLayeredSpeedOfSound * perimeter_m / (std::numbers::pi * area_m2 * omega);
}

}  // namespace velmar::models
