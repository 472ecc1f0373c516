#include "models/plates/plate_stack.h"

#include <cmath>
#include <string>

#include "acoustics/constants.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {

PlateStack SumLayers(std::span<const PlateLayer> layers) {
  PlateStack stack;
  double loss_times_thickness = 0.0;
  for (const PlateLayer& layer : layers) {
    const double h = LayerThickness(layer);
    const double lateral = 1.0 - layer.poissons_ratio * layer.poissons_ratio;
    if (lateral == 0.0) {
      throw ArithmeticFailure(kInvalidStiffnessRow,
                              "a layer has Poisson's ratio " + std::to_string(layer.poissons_ratio));
    }
    stack.thickness_m += h;
    stack.stiffness_n += 1e9 * layer.youngs_modulus_gpa * (h * h) / lateral;
    stack.mass_kg_m2 += layer.density_kg_m3 * h;
    loss_times_thickness += layer.loss_factor * h;
  }
  if (stack.thickness_m == 0.0) {
    throw ArithmeticFailure(kZeroThicknessRow,
                            "the thickness of " + std::to_string(layers.size()) + " layers is 0");
  }
  stack.internal_loss_factor = loss_times_thickness / stack.thickness_m;
  RequireFinite(stack.thickness_m, "the thickness of a plate");
  RequireFinite(stack.stiffness_n, "the stiffness of a plate");
  RequireFinite(stack.mass_kg_m2, "the surface mass of a plate");
  RequireFinite(stack.internal_loss_factor, "the internal loss factor of a plate");
  return stack;
}

double CriticalFrequency(const PlateStack& stack, double mass_kg_m2) {
  if (!(mass_kg_m2 > 0.0)) {
    throw ArithmeticFailure(kZeroMassRow, "the surface mass is " + std::to_string(mass_kg_m2) + " kg/m²");
  }
  if (!(stack.stiffness_n > 0.0)) {
    throw ArithmeticFailure(kInvalidStiffnessRow,
                            "the sum of E h² / (1 - nu²) is " + std::to_string(stack.stiffness_n) + " N");
  }
  const double fc = std::pow(acoustics::kSpeedOfSound, 2.0) / acoustics::kTwoPi *
                    std::sqrt(12.0 * (mass_kg_m2 / stack.thickness_m) / stack.stiffness_n);
  return RequireFinite(fc, "the critical frequency");
}

double BendingStiffness(const PlateStack& stack) { return stack.stiffness_n * stack.thickness_m / 12.0; }

}  // namespace velmar::models
