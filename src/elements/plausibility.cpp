#include "elements/plausibility.h"

#include <cmath>
#include <limits>

namespace velmar::elements {
namespace {

using enum MaterialProperty;

constexpr double kNoLimit = std::numeric_limits<double>::infinity();

// Usual ranges: from the lightest insulation to lead, from a veil to a wall, from foam rubber to steel, with
// room on both sides of what tables of building acoustics hold (Hopkins, Sound Insulation, tables A2 and A3;
// Bies, Hansen and Howard, Engineering Noise Control, table C.1; Cox and D'Antonio, table 6.2).
constexpr PropertyRange kStructuralThickness{0, kNoLimit, 0.1, 1000};
constexpr PropertyRange kLayerThickness{0, kNoLimit, 0.1, 600};
constexpr PropertyRange kStructuralDensity{0, kNoLimit, 10, 12000};
constexpr PropertyRange kFibrousDensity{0, kNoLimit, 3, 1000};
constexpr PropertyRange kResilientDensity{0, kNoLimit, 5, 2000, true};
constexpr PropertyRange kMass{0, kNoLimit, 0.05, 2000};
constexpr PropertyRange kModulus{0, kNoLimit, 0.001, 450};
constexpr PropertyRange kFibrousModulus{0, kNoLimit, 0.00001, 20};
constexpr PropertyRange kCritical{0, kNoLimit, 10, 1000000, true};
constexpr PropertyRange kLoss{0, 1, 0.00001, 0.5};
constexpr PropertyRange kPoisson{0, 0.5, 0, 0.495};
constexpr PropertyRange kResistance{0, kNoLimit, 1, 1000000};
constexpr PropertyRange kStiffness{0, kNoLimit, 1, 3000};
constexpr PropertyRange kImprovement{-kNoLimit, kNoLimit, 0, 60};
constexpr PropertyRange kResonance{0, kNoLimit, 10, 1000};
constexpr PropertyRange kAlpha{0, 1.5, 0, 1.2};

template <typename Material>
struct Judged {
  double Material::*field;
  MaterialProperty property;
};

/// Judges the fields that the record holds.
template <typename Material, std::size_t N>
std::vector<PropertyFinding> JudgeFields(MaterialKind kind, const MaterialRecord<Material>& material,
                                         const Judged<Material> (&fields)[N]) {
  std::vector<PropertyFinding> findings;
  for (const Judged<Material>& judged : fields) {
    if (!material.Holds(judged.field)) continue;
    const double value = material.values.*judged.field;
    const Plausibility verdict = Judge(kind, judged.property, value);
    if (verdict != Plausibility::kUsual) findings.push_back({kind, judged.property, value, verdict});
  }
  return findings;
}

void JudgeAbsorption(const FibrousMaterial& material, std::vector<PropertyFinding>& findings) {
  for (const float coefficient : material.absorption) {
    if (coefficient == kNoAbsorption) continue;
    const Plausibility verdict = Judge(MaterialKind::kFibrous, kAbsorption, coefficient);
    if (verdict != Plausibility::kUsual)
      findings.push_back({MaterialKind::kFibrous, kAbsorption, coefficient, verdict});
  }
}

}  // namespace

const PropertyRange& RangeOf(MaterialKind kind, MaterialProperty property) {
  const bool structural = kind == MaterialKind::kStructural;
  switch (property) {
    case kThickness:
      return structural ? kStructuralThickness : kLayerThickness;
    case kDensity:
      if (kind == MaterialKind::kResilient) return kResilientDensity;
      return structural ? kStructuralDensity : kFibrousDensity;
    case kSurfaceMass:
      return kMass;
    case kYoungsModulus:
      return structural ? kModulus : kFibrousModulus;
    case kCriticalFrequency:
      return kCritical;
    case kLossFactor:
      return kLoss;
    case kPoissonsRatio:
      return kPoisson;
    case kFlowResistance:
      return kResistance;
    case kDynamicStiffness:
      return kStiffness;
    case kImpactImprovement:
      return kImprovement;
    case kResonanceFrequency:
      return kResonance;
    case kAbsorption:
      break;
  }
  return kAlpha;
}

Plausibility Judge(MaterialKind kind, MaterialProperty property, double value) {
  const PropertyRange& range = RangeOf(kind, property);
  if (!std::isfinite(value) || value < range.lowest_possible || value > range.highest_possible)
    return Plausibility::kImpossible;
  if (value == 0.0 && range.zero_means_unknown) return Plausibility::kUsual;
  return value < range.lowest_usual || value > range.highest_usual ? Plausibility::kImprobable
                                                                   : Plausibility::kUsual;
}

std::vector<PropertyFinding> FindingsOf(const StructuralRecord& material) {
  using M = StructuralMaterial;
  static constexpr Judged<M> kFields[] = {{&M::thickness_mm, kThickness},
                                          {&M::density_kg_m3, kDensity},
                                          {&M::surface_mass_kg_m2, kSurfaceMass},
                                          {&M::youngs_modulus_gpa, kYoungsModulus},
                                          {&M::critical_frequency_hz, kCriticalFrequency},
                                          {&M::loss_factor, kLossFactor},
                                          {&M::poissons_ratio, kPoissonsRatio}};
  return JudgeFields(MaterialKind::kStructural, material, kFields);
}

std::vector<PropertyFinding> FindingsOf(const FibrousRecord& material) {
  using M = FibrousMaterial;
  static constexpr Judged<M> kPorousFields[] = {{&M::thickness_mm, kThickness},
                                                {&M::density_kg_m3, kDensity},
                                                {&M::flow_resistance_pa_s_m, kFlowResistance}};
  static constexpr Judged<M> kSolidFields[] = {{&M::thickness_mm, kThickness},
                                               {&M::density_kg_m3, kDensity},
                                               {&M::youngs_modulus_gpa, kYoungsModulus},
                                               {&M::loss_factor, kLossFactor},
                                               {&M::poissons_ratio, kPoissonsRatio}};
  if (!material.values.porous) return JudgeFields(MaterialKind::kFibrous, material, kSolidFields);
  std::vector<PropertyFinding> findings = JudgeFields(MaterialKind::kFibrous, material, kPorousFields);
  JudgeAbsorption(material.values, findings);
  return findings;
}

std::vector<PropertyFinding> FindingsOf(const ResilientRecord& material) {
  using M = ResilientMaterial;
  static constexpr Judged<M> kFields[] = {{&M::thickness_mm, kThickness},
                                          {&M::density_kg_m3, kDensity},
                                          {&M::dynamic_stiffness_mn_m3, kDynamicStiffness},
                                          {&M::impact_improvement_db, kImpactImprovement},
                                          {&M::resonance_frequency_hz, kResonanceFrequency}};
  return JudgeFields(MaterialKind::kResilient, material, kFields);
}

std::vector<PropertyFinding> Only(std::span<const PropertyFinding> findings, Plausibility verdict) {
  std::vector<PropertyFinding> chosen;
  for (const PropertyFinding& finding : findings) {
    if (finding.verdict == verdict) chosen.push_back(finding);
  }
  return chosen;
}

}  // namespace velmar::elements
