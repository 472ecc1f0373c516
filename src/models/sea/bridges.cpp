#include "models/sea/bridges.h"

#include <cmath>

#include "acoustics/constants.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/wide_vectors.h"

namespace velmar::models {
namespace {

using acoustics::kAirDensity;
using acoustics::kAirImpedance;
using acoustics::kSpeedOfSound;
using acoustics::kTwoPi;

void RequireBalance(double resonant, double forced) {
  const auto usable = [](double x) { return x >= 0.0 && std::isfinite(x); };
  if (!usable(resonant) || !usable(forced)) {
    throw ArithmeticFailure(kNoConnectionBalanceRow, "the connection's coupling is negative or not finite");
  }
}

VELMAR_WIDE_VECTORS void CoupleByPoints(double resonant, double forced,
                                        const HzSpectrum& radiation_efficiency, HzSpectrum& coupling) {
  for (int f = 1; f <= kLastHz; ++f) {
    coupling[f] = radiation_efficiency[f] * resonant / static_cast<double>(f) + forced;
  }
}

VELMAR_WIDE_VECTORS void CoupleByLines(double resonant, double forced, const HzSpectrum& radiation_efficiency,
                                       const HzSpectrum& roots, HzSpectrum& coupling) {
  for (int f = 1; f <= kLastHz; ++f) {
    coupling[f] = (forced * roots[f] + radiation_efficiency[f] * resonant) / static_cast<double>(f);
  }
}

}  // namespace

HzSpectrum SeaPointBridgeCoupling(const SeaPointBridge& bridge, const HzSpectrum& radiation_efficiency) {
  HzSpectrum coupling{};
  if (bridge.count == 0) return coupling;
  const double m = bridge.surface_mass_kg_m2;
  const double h = bridge.thickness_m;
  const double impedance = 2.3 * bridge.longitudinal_speed_m_s * h;
  const double mobility = 1.0 / (h * impedance * m);
  const double scale = static_cast<double>(bridge.count) / mobility;
  const double resonant = kAirImpedance / (m * m * impedance * kTwoPi * bridge.loss_factor) * scale;
  const double forced = 1.0 / kTwoPi * kAirDensity / (m * m * kSpeedOfSound) * scale;
  RequireBalance(resonant, forced);
  CoupleByPoints(resonant, forced, radiation_efficiency, coupling);
  return coupling;
}

void SeaLineBridgeCoupling(const SeaLineBridge& bridge, const HzSpectrum& radiation_efficiency,
                           HzSpectrum& coupling) {
  if (bridge.count == 0.0) return;
  const double m = bridge.surface_mass_kg_m2;
  // The line's conductance n falls with sqrt(f); its reciprocal at 1 Hz.
  const double resistance = 2.0 * bridge.length_m * m * kSpeedOfSound /
                            (std::sqrt(bridge.critical_frequency_hz) * bridge.length_m * bridge.length_m);
  const double forced = bridge.count * kAirDensity / (m * m * kTwoPi) * resistance;
  const double resonant = bridge.count * kAirImpedance / (kTwoPi * m * bridge.loss_factor);
  RequireBalance(resonant, forced);
  CoupleByLines(resonant, forced, radiation_efficiency, RootsOfHz(), coupling);
}

VELMAR_WIDE_VECTORS
void AddBridge(const HzSpectrum& coupling, HzSpectrum& power_ratio) {
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    const double ratio = power_ratio[f] / (1.0 + power_ratio[f] * coupling[f]);
    power_ratio[f] = ratio < 1.0 ? 1.0 : ratio;
  }
}

}  // namespace velmar::models
