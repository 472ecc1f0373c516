#include "models/walls/single_wall.h"

#include "models/plates/plate_stack.h"
#include "models/plates/single_plate_spectrum.h"

namespace velmar::models {

SingleWallResult CalculateSingleWall(const SingleWallInput& input) {
  const PlateStack stack = SumLayers(input.layers);
  SingleWallResult result;
  result.mass_kg_m2 = stack.mass_kg_m2;
  result.internal_loss_factor = stack.internal_loss_factor;
  result.critical_frequency_hz = CriticalFrequency(stack, stack.mass_kg_m2);
  result.bending_n_m = BendingStiffness(stack);
  const LossTerms losses = FindLossTerms(stack.mass_kg_m2, stack.internal_loss_factor,
                                         result.critical_frequency_hz, input.dimensions);
  result.spectrum = SinglePlateSpectrum(stack.mass_kg_m2, result.bending_n_m, FineGridLossFactors(losses));
  return result;
}

}  // namespace velmar::models
