#include "models/floors/screed_improvement.h"

#include <cmath>
#include <cstddef>
#include <string>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/floors/resilient_mats.h"

namespace velmar::models {

ScreedImprovement FindScreedImprovement(double screed_mass_kg_m2, double stiffness_mn_m3) {
  ScreedImprovement improvement;
  if (screed_mass_kg_m2 == 0.0 || stiffness_mn_m3 == 0.0) return improvement;
  if (!(screed_mass_kg_m2 > 0.0)) {
    throw ArithmeticFailure(kZeroMassRow,
                            "the screed weighs " + std::to_string(screed_mass_kg_m2) + " kg/m²");
  }
  if (!(stiffness_mn_m3 > 0.0)) {
    throw ArithmeticFailure(kInvalidDynamicStiffnessRow,
                            "the dynamic stiffness is " + std::to_string(stiffness_mn_m3) + " MN/m³");
  }
  const double f0 = RequireFinite(160.0 * std::sqrt(stiffness_mn_m3 / screed_mass_kg_m2), "resonance");
  improvement.resonance_hz = f0;
  improvement.delta_lnw_db = RequireFinite(
      30.0 / 2.0 * acoustics::Log10(screed_mass_kg_m2 / stiffness_mn_m3) + 18.0, "weighted improvement");
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    improvement.delta_db[band] =
        RequireFinite(30.0 * acoustics::Log10(acoustics::BandCentre(band) / f0), "improvement");
  }
  return improvement;
}

}  // namespace velmar::models
