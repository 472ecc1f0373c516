#include "models/sea/leaf_transmission.h"

#include <cmath>
#include <limits>

#include "acoustics/constants.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/wide_vectors.h"
#include "models/sea/power_ratio.h"

namespace velmar::models {
namespace {

using acoustics::kAirDensity;
using acoustics::kPi;
using acoustics::kSpeedOfSound;
using acoustics::kTwiceAirImpedance;
using acoustics::kTwoPi;

constexpr double kMinus5Db = 0.31622776601683794;

bool IsPositiveFinite(double x) { return x > 0.0 && x <= std::numeric_limits<double>::max(); }

/// So far from the ends of the number range that positive factors leave a positive finite balance.
bool IsOrdinary(double x) { return x > 1e-60 && x < 1e60; }

void RequireBalance(const HzSpectrum& power_ratio) {
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    if (!IsPositiveFinite(power_ratio[f])) {
      throw ArithmeticFailure(kNoLeafBalanceRow, "no energy balance of a leaf at some frequency");
    }
  }
}

/// What the balance of a leaf takes from it, free of the frequency.
struct LeafBalance {
  double resonance = 0.0;
  double inertia = 0.0;
  double loss_factor = 0.0;
  double radiation_loss = 0.0;
};

/// Both paths over f³ eta sqrt(f): one division a frequency.
VELMAR_WIDE_VECTORS void Balance(const LeafBalance& leaf, const HzSpectrum& radiation_efficiency,
                                 const HzSpectrum& roots, HzSpectrum& power_ratio) {
  for (int hz = 1; hz <= kLastHz; ++hz) {
    const auto f = static_cast<double>(hz);
    const double loss = leaf.loss_factor * roots[hz] + leaf.radiation_loss;
    const double efficiency = radiation_efficiency[hz];
    power_ratio[hz] = f * f * f * loss /
                      (kFourfoldAirImpedance *
                       (leaf.resonance * efficiency * efficiency * roots[hz] + leaf.inertia * f * loss));
  }
}

/// At least 1, at most what normal incidence lets through, less 5 dB.
VELMAR_WIDE_VECTORS void Limit(double impedance_per_hz, HzSpectrum& power_ratio) {
  for (int hz = 1; hz <= kLastHz; ++hz) {
    const double normal = impedance_per_hz * static_cast<double>(hz);
    const double ceiling = (1.0 + normal * normal) * kMinus5Db;
    const double limited = power_ratio[hz] < ceiling ? power_ratio[hz] : ceiling;
    power_ratio[hz] = limited < 1.0 ? 1.0 : limited;
  }
}

}  // namespace

void SeaLeafPowerRatio(const HzSpectrum& radiation_efficiency, const SeaLeaf& leaf, HzSpectrum& power_ratio) {
  const double mass = leaf.surface_mass_kg_m2;
  const LeafBalance balance{
      .resonance =
          kSpeedOfSound * kSpeedOfSound * kSpeedOfSound * (std::sqrt(12.0) * kPi) * kAirDensity /
          (2.0 * (kTwoPi * kTwoPi * kTwoPi) * mass * mass * leaf.thickness_m * leaf.longitudinal_speed_m_s),
      .inertia = kPiAirImpedance / (mass * mass * (kTwoPi * kTwoPi)),
      .loss_factor = leaf.loss_factor,
      .radiation_loss = mass / 485.0};
  if (!IsPositiveFinite(std::abs(balance.resonance)) || !IsPositiveFinite(balance.inertia)) {
    throw ArithmeticFailure(kNoBendingWaveRow, "a leaf has no mass, thickness or wave speed");
  }
  Balance(balance, radiation_efficiency, RootsOfHz(), power_ratio);
  if (!IsOrdinary(balance.resonance) || !IsOrdinary(balance.inertia) ||
      !IsOrdinary(balance.loss_factor + balance.radiation_loss) || balance.loss_factor < 0.0) {
    RequireBalance(power_ratio);
  }
  Limit(kTwoPi * mass / kTwiceAirImpedance, power_ratio);
}

HzSpectrum SeaLeafTransmission(const HzSpectrum& radiation_efficiency, const SeaLeaf& leaf) {
  HzSpectrum ratio{};
  SeaLeafPowerRatio(radiation_efficiency, leaf, ratio);
  return LevelsOf(ratio);
}

}  // namespace velmar::models
