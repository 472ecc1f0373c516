#include "models/floors/resilient_mats.h"

#include <cmath>
#include <string>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

double RequireStiffness(double value) {
  if (value > 0.0 && std::isfinite(value)) return value;
  throw ArithmeticFailure(kInvalidDynamicStiffnessRow,
                          "the dynamic stiffness is " + std::to_string(value) + " MN/m³");
}

}  // namespace

double CombinedDynamicStiffness(std::span<const ResilientMat> layers) {
  double compliance = 0.0;
  for (const ResilientMat& layer : layers) {
    if (layer.dynamic_stiffness_mn_m3 == 0.0) continue;
    compliance += layer.multiplicity / RequireStiffness(layer.dynamic_stiffness_mn_m3);
  }
  if (compliance == 0.0) return 0.0;
  return RequireStiffness(1.0 / compliance);
}

}  // namespace velmar::models
