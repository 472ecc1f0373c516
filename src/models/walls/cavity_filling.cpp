#include "models/walls/cavity_filling.h"

#include <string>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

constexpr double kSmallestGap = 0.005;  ///< m
/// Flow resistivity of fibres, Pa·s/m²; also of an empty cavity, whose porous layer has no thickness.
constexpr double kFibreFlowResistivity = 6000.0;

void AddAbsorbing(const CavityLayer& layer, double thickness_m, Cavity& cavity) {
  if (thickness_m == 0.0) {
    throw ArithmeticFailure(kZeroCavityLayerRow, "an absorbing layer of the cavity has thickness 0");
  }
  cavity.flow_resistivity_pa_s_m2 += layer.flow_resistance_pa_s_m / thickness_m;
  cavity.porous_thickness_m += thickness_m;
}

CavityFilling FillWithLayers(const DoubleWallInput& input) {
  CavityFilling filling;
  double solid_h = 0.0;
  double solid_eh2 = 0.0;
  for (const CavityLayer& layer : input.cavity_layers) {
    const double t = layer.multiplicity * layer.thickness_mm * 0.001;
    if (layer.absorbing) {
      AddAbsorbing(layer, t, filling.cavity);
      continue;
    }
    const double lateral = 1.0 - layer.poissons_ratio * layer.poissons_ratio;
    if (lateral == 0.0) {
      throw ArithmeticFailure(kInvalidStiffnessRow, "a layer of the cavity has Poisson's ratio " +
                                                        std::to_string(layer.poissons_ratio));
    }
    solid_eh2 += layer.youngs_modulus_gpa * 1e9 * (t * t) / lateral;
    solid_h += t;
    filling.solid.mass_kg_m2 += layer.density_kg_m3 * t;
    filling.solid.loss_factor += layer.loss_factor * t;
  }
  filling.solid.bending_n_m = solid_eh2 * solid_h / 12.0;
  Cavity& cavity = filling.cavity;
  if (cavity.flow_resistivity_pa_s_m2 == 0.0) cavity.flow_resistivity_pa_s_m2 = 1.0;
  cavity.depth_m = input.cavity_depth_m - solid_h - cavity.porous_thickness_m;
  return filling;
}

}  // namespace

CavityFilling FillCavity(const DoubleWallInput& input) {
  switch (input.cavity_kind) {
    case CavityKind::kEmpty:
      return {{input.cavity_depth_m, 0.0, kFibreFlowResistivity}, {}};
    case CavityKind::kFibrous:
      return {{0.0, input.cavity_depth_m, kFibreFlowResistivity}, {}};
    case CavityKind::kGenericMaterial:
      return FillWithLayers(input);
  }
  return {};
}

Cavity WithSmallestGap(Cavity cavity) {
  if (cavity.porous_thickness_m + cavity.depth_m < kSmallestGap) cavity.depth_m = kSmallestGap;
  return cavity;
}

}  // namespace velmar::models
