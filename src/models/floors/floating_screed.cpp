#include "models/floors/floating_screed.h"

#include <cmath>

#include "foundation/failure.h"
#include "models/floors/floor_mass.h"
#include "models/plates/loss_factor.h"
#include "models/plates/plate_stack.h"
#include "models/plates/single_plate_spectrum.h"

namespace velmar::models {

FloatingScreedOutcome CalculateFloatingScreed(const FloatingScreedInput& input) {
  std::vector<PlateLayer> layers = input.slab;
  layers.insert(layers.end(), input.screed.begin(), input.screed.end());
  const PlateStack stack = SumLayers(layers);

  FloatingScreedOutcome outcome;
  outcome.slab_mass_kg_m2 = SurfaceMass(input.slab);
  outcome.screed_mass_kg_m2 = SurfaceMass(input.screed);
  outcome.mass_kg_m2 = stack.mass_kg_m2;
  outcome.loss_factor = stack.internal_loss_factor;
  outcome.bending_n_m = RequireFinite(BendingStiffness(stack), "bending stiffness");
  const double plate_mass =
      outcome.slab_mass_kg_m2 + outcome.screed_mass_kg_m2 + SurfaceMass(input.resilient);
  outcome.critical_frequency_hz = CriticalFrequency(stack, plate_mass);
  const LossTerms terms =
      FindLossTerms(outcome.mass_kg_m2, outcome.loss_factor, outcome.critical_frequency_hz,
                    {.a_m = std::abs(input.side_a_m), .b_m = std::abs(input.side_b_m)});
  outcome.reduction_index_db =
      SinglePlateSpectrum(plate_mass, outcome.bending_n_m, FineGridLossFactors(terms));
  return outcome;
}

}  // namespace velmar::models
