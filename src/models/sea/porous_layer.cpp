#include "models/sea/porous_layer.h"

#include <cmath>

#include "acoustics/constants.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/wide_vectors.h"
#include "models/sea/power_ratio.h"

namespace velmar::models {
namespace {

constexpr double kRestTransmission = 0.98;
constexpr double kMinus5Point5Db = 0.28183829312644537;

VELMAR_WIDE_VECTORS double Highest(const HzSpectrum& absorption) {
  double highest = 0.0;
#pragma omp simd reduction(max : highest)
  for (std::size_t f = 1; f <= kHighestHz; ++f) highest = absorption[f] > highest ? absorption[f] : highest;
  return highest;
}

/// A coefficient of 1 and more takes that of the frequency below.
void LimitAbsorption(HzSpectrum& absorption) {
  if (Highest(absorption) < 1.0) return;
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    if (absorption[f] >= 1.0) absorption[f] = absorption[f - 1];
  }
  if (absorption[0] >= 1.0 && absorption[1] >= 1.0) throw ArithmeticFailure("a fill absorbs everything");
}

VELMAR_WIDE_VECTORS void PassLayer(double per_hz, const HzSpectrum& absorption, HzSpectrum& power_ratio) {
#pragma omp simd
  for (int f = 1; f <= kLastHz; ++f) {
    const double mass = per_hz * static_cast<double>(f);
    power_ratio[f] *= 1.0 / ((1.0 - absorption[f]) * kRestTransmission) + mass * mass * kMinus5Point5Db;
  }
}

}  // namespace

void MultiplyPorousLayer(const SeaPorousLayer& layer, HzSpectrum& absorption, HzSpectrum& power_ratio) {
  if (!layer.is_present) {
    for (std::size_t f = 1; f <= kHighestHz; ++f) power_ratio[f] *= 1.0 / kRestTransmission;
    return;
  }
  const double per_hz = acoustics::kPi * (layer.thickness_m * layer.density_kg_m3) / acoustics::kAirImpedance;
  if (!(per_hz > 0.0) || !std::isfinite(per_hz)) {
    throw ArithmeticFailure(kNoFillMassRow, "a fill has no mass");
  }
  LimitAbsorption(absorption);
  PassLayer(per_hz, absorption, power_ratio);
}

HzSpectrum SeaPorousLayerAttenuation(const SeaPorousLayer& layer, const HzSpectrum& absorption) {
  HzSpectrum limited = absorption;
  HzSpectrum ratio{};
  ratio.fill(1.0);
  MultiplyPorousLayer(layer, limited, ratio);
  return LevelsOf(ratio);
}

}  // namespace velmar::models
