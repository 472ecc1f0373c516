#include "models/sea/single_sea_wall.h"

#include <algorithm>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/sea/band_average.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/side.h"

namespace velmar::models {

SeaWallOutcome CalculateSingleSeaWall(const SingleSeaWallInput& input) {
  SeaWallOutcome outcome{.critical_frequency_hz = -1.0};
  HzSpectrum sum{};
  HzSpectrum leaf{};
  for (std::size_t slot = 0; slot < kSeaLayerSlots; ++slot) {
    const auto& layer = input.layers[slot];
    if (!layer) continue;
    const SeaPlateInput plate_input = PlateOf(*layer, input.size, kSingleWallRadiationCap);
    const SeaPlate plate = RequirePlate(plate_input);
    // The leaf is as thick as its main sheet here; in a double wall its damping sheets count.
    SeaLeafPowerRatio(plate.radiation_efficiency,
                      {.longitudinal_speed_m_s = plate.longitudinal_speed_m_s,
                       .surface_mass_kg_m2 = plate.surface_mass_kg_m2,
                       .thickness_m = plate_input.sheets[0].thickness_m,
                       .loss_factor = DampedLossFactor(*layer)},
                      leaf);
    const double gain = slot == 0 ? 1.0 : 2.0;
    for (std::size_t f = 1; f <= kHighestHz; ++f) sum[f] = gain * (leaf[f] + sum[f]);
    outcome.surface_mass_kg_m2 += plate.surface_mass_kg_m2;
    outcome.critical_frequency_hz = std::max(outcome.critical_frequency_hz, plate.critical_frequency_hz);
  }
  if (outcome.critical_frequency_hz < 0.0) throw ArithmeticFailure(kNoLayerRow, "the wall has no layer");
  outcome.reduction_index_db = MeanLevelOfBands(sum);
  outcome.loss_factor = MeanLossFactor(LossFactorTimesThickness(input.layers), input.total_thickness_mm);
  return outcome;
}

}  // namespace velmar::models
