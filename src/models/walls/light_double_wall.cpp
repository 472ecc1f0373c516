#include "models/walls/light_double_wall.h"

#include <algorithm>
#include <cmath>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/walls/bridged_limit.h"
#include "models/walls/light_leaf.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;
using acoustics::Log10;
using acoustics::Spectrum;

/// The sums over the rows that decide the wall as a whole.
struct LightWallSums {
  double m1 = 0.0;
  double m2 = 0.0;
  double eta1 = 0.0;
  double eta2 = 0.0;
};

LightWallSums SumRows(const LightDoubleWallInput& input) {
  LightWallSums sums;
  for (std::size_t row = 0; row < input.leaf1.count; ++row) {
    const PlateLayer& own = input.leaf1.rows.at(row);
    // The thickness is that of the second leaf's row.
    sums.m1 += input.leaf2.rows[row].thickness_mm * 0.001 * own.density_kg_m3 * own.multiplicity;
    sums.eta1 += own.multiplicity * own.loss_factor;
  }
  for (std::size_t row = 0; row < input.leaf2.count; ++row) {
    const PlateLayer& own = input.leaf2.rows.at(row);
    sums.m2 += own.thickness_mm * 0.001 * own.density_kg_m3 * own.multiplicity;
    // The loss factor is that of the first leaf's row.
    sums.eta2 += own.multiplicity * input.leaf1.rows[row].loss_factor;
  }
  return sums;
}

/// F0, the mass-air-mass frequency of light leaves.
double LightResonance(const LightWallSums& sums, double depth_m) {
  if (!(depth_m > 0.0)) throw ArithmeticFailure(kZeroCavityDepthRow, "the depth between the leaves is 0");
  if (!(sums.m1 > 0.0) || !(sums.m2 > 0.0)) throw ArithmeticFailure(kZeroMassRow, "a light leaf has no mass");
  const double effective_mass = 2.0 * sums.m1 * sums.m2 / (sums.m1 + sums.m2);
  return RequireFinite(113.0 / std::sqrt(effective_mass * depth_m), "the resonance frequency");
}

struct UnbridgedWall {
  Spectrum bands{};
  /// The band of the highest value up to the highest critical frequency, the later of equals; the first band
  /// when none lies there or none is above -1 dB.
  std::size_t peak_band = 0;
};

UnbridgedWall FindUnbridgedWall(const LightDoubleWallResult& values, double depth_m, const LightLeaf& leaf1,
                                const LightLeaf& leaf2) {
  const double mass_kg_m2 = values.leaf1_mass_kg_m2 + values.leaf2_mass_kg_m2;
  const double highest_critical =
      std::max(leaf1.highest_critical_frequency_hz, leaf2.highest_critical_frequency_hz);
  UnbridgedWall wall;
  double peak = -1.0;
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const double f = acoustics::BandCentre(band);
    const double both_leaves = leaf1.bands[band] + leaf2.bands[band];
    double r = both_leaves + 6.0;
    if (f <= values.resonance_hz) {
      r = 20.0 * Log10(mass_kg_m2 * f) - 48.0;
    } else if (f < values.depth_resonance_hz) {
      r = both_leaves + 20.0 * Log10(f * depth_m) - 29.0;
    }
    wall.bands[band] = RequireFinite(r, "a reduction index");
    if (f <= highest_critical && r >= peak) {
      peak = r;
      wall.peak_band = band;
    }
  }
  return wall;
}

}  // namespace

LightDoubleWallResult CalculateLightDoubleWall(const LightDoubleWallInput& input) {
  const LightWallSums sums = SumRows(input);
  LightDoubleWallResult result;
  result.leaf1_mass_kg_m2 = sums.m1;
  result.leaf2_mass_kg_m2 = sums.m2;
  result.resonance_hz = LightResonance(sums, input.depth_m);
  result.depth_resonance_hz = RequireFinite(55.0 / input.depth_m, "the resonance frequency of the depth");
  const LightLeaf leaf1 = FindLightLeaf(input.leaf1, sums.eta1, result.resonance_hz, input.cavity_kind);
  const LightLeaf leaf2 = FindLightLeaf(input.leaf2, sums.eta2, result.resonance_hz, input.cavity_kind);
  const UnbridgedWall wall = FindUnbridgedWall(result, input.depth_m, leaf1, leaf2);
  result.spectrum = wall.bands;
  if (IsConnected(input.form)) {
    const BridgedWall bridges{input.form,
                              sums.m1,
                              sums.m2,
                              leaf1.highest_critical_frequency_hz,
                              leaf2.highest_critical_frequency_hz,
                              input.stud_distance_m,
                              input.dim_b_m};
    result.spectrum = LimitByBridges(wall.bands, BridgedValues(bridges), wall.peak_band);
  }
  return result;
}

}  // namespace velmar::models
