#include "models/sea/layers.h"

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

constexpr double kPascalPerGigapascal = 1e9;
constexpr double kMillimetresPerMetre = 1000.0;
constexpr double kDampingGain = 1.5;

}  // namespace

double ReducedModulus(double youngs_modulus_gpa) {
  const double reduced = youngs_modulus_gpa - 2.0;
  return kPascalPerGigapascal * (reduced >= 2.0 ? reduced : youngs_modulus_gpa);
}

double DampedLossFactor(const SeaLayer& layer) {
  const bool is_damped = layer.damping[0].has_value() || layer.damping[1].has_value();
  return is_damped ? layer.loss_factor * kDampingGain : layer.loss_factor;
}

SeaPlateInput PlateOf(const SeaLayer& layer, const SeaElementSize& size, double radiation_cap) {
  SeaPlateInput input{.length_a_m = size.length_a_m,
                      .length_b_m = size.length_b_m,
                      .poissons_ratio = layer.poissons_ratio,
                      .radiation_cap = radiation_cap};
  input.sheets[0] = {.thickness_m = layer.thickness_mm / kMillimetresPerMetre,
                     .youngs_modulus_pa = ReducedModulus(layer.youngs_modulus_gpa),
                     .density_kg_m3 = layer.density_kg_m3};
  for (std::size_t i = 0; i < layer.damping.size(); ++i) {
    if (!layer.damping[i]) continue;
    input.sheets[i + 1] = {.thickness_m = layer.damping[i]->thickness_mm / kMillimetresPerMetre,
                           .youngs_modulus_pa = kPascalPerGigapascal * layer.damping[i]->youngs_modulus_gpa,
                           .density_kg_m3 = layer.damping[i]->density_kg_m3};
  }
  return input;
}

SeaPlate RequirePlate(const SeaPlateInput& input) {
  SeaPlate plate = SeaPlateRadiation(input);
  switch (plate.fault) {
    case SeaPlateFault::kNone:
      break;
    case SeaPlateFault::kNoBendingWave:
      throw ArithmeticFailure(kNoBendingWaveRow, "a layer's data describe no plate");
    case SeaPlateFault::kCoincidenceOnGrid:
      throw ArithmeticFailure(kCoincidenceOnGridRow, "a critical frequency is a whole number of Hz");
  }
  return plate;
}

}  // namespace velmar::models
