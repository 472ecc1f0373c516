#include "models/relations/relation_quantities.h"

#include <cmath>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

double PerThickness(double mass_kg_m2, const RelationInput& in) {
  const double thickness_m = ThicknessInMetres(in);
  if (thickness_m == 0.0)
    throw ArithmeticFailure(kZeroThicknessRow, "the density of an element without thickness");
  return RequireFinite(mass_kg_m2 / thickness_m, "the density of an element");
}

/// s' of all resilient layers in series, MN/m³; 0 when none counts.
double SeriesStiffness(const std::vector<ResilientLayer>& layers) {
  double compliance = 0.0;
  for (const ResilientLayer& layer : layers) {
    if (layer.dynamic_stiffness_mn_m3 > 0.0) {
      compliance += 1.0 / layer.dynamic_stiffness_mn_m3 * layer.multiplicity;
    }
  }
  return compliance > 0.0 ? 1.0 / compliance : 0.0;
}

}  // namespace

double PlateMass(const RelationInput& in) { return in.mass_kg_m2; }
double BothLeavesMass(const RelationInput& in) { return in.leaf1_mass_kg_m2 + in.leaf2_mass_kg_m2; }

double ThicknessInMetres(const RelationInput& in) { return static_cast<double>(in.thickness_mm) / 1000.0; }
double ThicknessInCentimetres(const RelationInput& in) { return static_cast<double>(in.thickness_mm) / 10.0; }
double CavityDepthInCentimetres(const RelationInput& in) {
  return static_cast<double>(in.cavity_depth_mm) / 10.0;
}
double FibreInCentimetres(const RelationInput& in) {
  return static_cast<double>(in.fibre_thickness_mm) / 10.0;
}

double PlateDensity(const RelationInput& in) { return PerThickness(PlateMass(in), in); }
double BothLeavesDensity(const RelationInput& in) { return PerThickness(BothLeavesMass(in), in); }

double HasFibrousCavity(const RelationInput& in) {
  return in.cavity_kind == CavityKind::kFibrous ? 1.0 : 0.0;
}
double HasEmptyCavity(const RelationInput& in) { return in.cavity_kind == CavityKind::kEmpty ? 1.0 : 0.0; }

FloatingScreed FindFloatingScreed(const RelationInput& in) {
  FloatingScreed screed;
  screed.mass_kg_m2 = BothLeavesMass(in);
  if (in.leaf1_mass_kg_m2 == 0.0 || in.leaf2_mass_kg_m2 == 0.0) {
    throw ArithmeticFailure(kZeroMassRow, "a floor or its floating screed has no surface mass");
  }
  screed.bare_rating_db = 23.0 * acoustics::Log10(screed.mass_kg_m2) - 8.0;
  const double stiffness = SeriesStiffness(in.resilient_layers);
  screed.resonance_hz =
      RequireFinite(160.0 * std::sqrt((1.0 / in.leaf2_mass_kg_m2 + 1.0 / in.leaf1_mass_kg_m2) * stiffness),
                    "the resonance frequency of a floating screed");
  return screed;
}

double FloatingScreedImprovement(const FloatingScreed& screed) {
  if (screed.resonance_hz == 0.0) return 0.0;
  return 72.0 - (screed.bare_rating_db / 2.0 + 20.0 * acoustics::Log10(screed.resonance_hz));
}

}  // namespace velmar::models
