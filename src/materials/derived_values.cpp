#include "materials/derived_values.h"

#include <array>
#include <cmath>

#include "foundation/failure.h"
#include "models/plates/plate_stack.h"

namespace velmar::materials {
namespace {

constexpr double kMmPerM = 1000.0;
constexpr double kHundredths = 100.0;
/// Tables round m' to four decimals and fc to two.
constexpr double kRounding = 0.0051;

bool Follows(double stated, double derived) { return std::abs(stated - derived) <= kRounding; }

}  // namespace

double SurfaceMassOf(const elements::StructuralMaterial& material) {
  return material.density_kg_m3 * material.thickness_mm / kMmPerM;
}

double CriticalFrequencyOf(const elements::StructuralMaterial& material) {
  try {
    const std::array layers = {models::PlateLayer{.multiplicity = 1,
                                                  .thickness_mm = material.thickness_mm,
                                                  .density_kg_m3 = material.density_kg_m3,
                                                  .youngs_modulus_gpa = material.youngs_modulus_gpa,
                                                  .loss_factor = material.loss_factor,
                                                  .poissons_ratio = material.poissons_ratio}};
    const models::PlateStack stack = models::SumLayers(layers);
    return std::round(models::CriticalFrequency(stack, stack.mass_kg_m2) * kHundredths) / kHundredths;
  } catch (const ArithmeticFailure&) {
    return 0.0;
  }
}

void FollowChange(const elements::StructuralMaterial& before, elements::StructuralMaterial& changed) {
  const bool mass_stays = changed.surface_mass_kg_m2 == before.surface_mass_kg_m2;
  if (mass_stays && Follows(before.surface_mass_kg_m2, SurfaceMassOf(before)) &&
      SurfaceMassOf(before) != SurfaceMassOf(changed)) {
    changed.surface_mass_kg_m2 = SurfaceMassOf(changed);
  }
  const bool frequency_stays = changed.critical_frequency_hz == before.critical_frequency_hz;
  const double derived = CriticalFrequencyOf(changed);
  if (frequency_stays && Follows(before.critical_frequency_hz, CriticalFrequencyOf(before)) &&
      CriticalFrequencyOf(before) != derived) {
    changed.critical_frequency_hz = derived;
  }
}

}  // namespace velmar::materials
