#include "models/sea/side.h"

#include <algorithm>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/sea/leaf_transmission.h"

namespace velmar::models {
namespace {

constexpr double kMillimetresPerMetre = 1000.0;

}  // namespace

void BalanceSide(const SeaSide& side, const SeaElementSize& size, SeaSideBalance& balance) {
  HzSpectrum leaf{};
  double heaviest_kg_m2 = -1.0;
  for (std::size_t slot = 0; slot < kSeaLayerSlots; ++slot) {
    if (!side[slot]) continue;
    SeaPlate& plate = balance.plates[slot];
    plate = RequirePlate(PlateOf(*side[slot], size, kDoubleWallRadiationCap));
    balance.loss_factors[slot] = DampedLossFactor(*side[slot]);
    SeaLeafPowerRatio(plate.radiation_efficiency,
                      {.longitudinal_speed_m_s = plate.longitudinal_speed_m_s,
                       .surface_mass_kg_m2 = plate.surface_mass_kg_m2,
                       .thickness_m = plate.thickness_m,
                       .loss_factor = balance.loss_factors[slot]},
                      leaf);
    for (std::size_t f = 1; f <= kHighestHz; ++f) balance.power_ratio[f] += leaf[f];
    balance.surface_mass_kg_m2 += plate.surface_mass_kg_m2;
    balance.thickness_m += plate.thickness_m;
    balance.loss_factor_sum += balance.loss_factors[slot];
    if (plate.surface_mass_kg_m2 > heaviest_kg_m2) {
      heaviest_kg_m2 = plate.surface_mass_kg_m2;
      balance.heaviest_slot = slot;
    }
  }
  if (heaviest_kg_m2 < 0.0) throw ArithmeticFailure(kNoLayerRow, "a side has no layer");
}

double HighestCriticalFrequency(const SeaSideBalance& balance) {
  double highest_hz = -1.0;
  for (const SeaPlate& plate : balance.plates) {
    if (plate.surface_mass_kg_m2 > 0.0) highest_hz = std::max(highest_hz, plate.critical_frequency_hz);
  }
  return highest_hz;
}

double LossFactorTimesThickness(const SeaSide& side) {
  double sum_m = 0.0;
  for (const auto& layer : side) {
    if (layer) sum_m += DampedLossFactor(*layer) * layer->thickness_mm / kMillimetresPerMetre;
  }
  return sum_m;
}

double MeanLossFactor(double loss_factor_times_thickness_m, double total_thickness_mm) {
  const double mean = loss_factor_times_thickness_m / (total_thickness_mm / kMillimetresPerMetre);
  if (!(total_thickness_mm > 0.0)) throw ArithmeticFailure(kZeroThicknessRow, "an element without thickness");
  return RequireFinite(mean, "loss factor");
}

}  // namespace velmar::models
