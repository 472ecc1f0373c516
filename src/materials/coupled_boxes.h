#pragma once

#include <optional>
#include <string>

namespace velmar::materials {

/// The three boxes of a structural material that follow from each other, as texts.
struct MassBoxes {
  std::string thickness_mm{};
  std::string density_kg_m3{};
  std::string surface_mass_kg_m2{};

  bool operator==(const MassBoxes&) const = default;
};
enum class MassBox { kThickness, kDensity, kSurfaceMass };

/// The boxes after the focus left `left`: when it and at least one other are filled, the third is density
/// times thickness, or what that gives; a density that is there stays, unless the mass was typed beside it,
/// which gives the thickness. Numbers count as absolute values; results have two decimals. Boxes that are no
/// numbers, and divisions by zero, change nothing.
MassBoxes CoupleMass(MassBoxes boxes, MassBox left);

/// The three boxes of a resilient material that follow from each other, as texts.
struct ResilientBoxes {
  std::string dynamic_stiffness_mn_m3{};  ///< s'
  std::string impact_improvement_db{};    ///< Delta Ln,w
  std::string resonance_frequency_hz{};   ///< f0

  bool operator==(const ResilientBoxes&) const = default;
};
enum class ResilientBox { kStiffness, kImprovement, kResonance };

/// The boxes after the focus left `left`: the other two follow from it for a floating screed of M = 100
/// kg/m²: f0 = 160 sqrt(s' / M) (EN 29052-1) and Delta Ln,w = 18.3 - 15 lg(s' / M). A text that is no number,
/// a negative one, and a value that leads to none leave the others alone.
ResilientBoxes CoupleResilient(ResilientBoxes boxes, ResilientBox left);

/// Delta Lw in dB, with one decimal, of a cement screed of 100 kg/m² on a layer of that stiffness after EN
/// ISO 12354-2, Annex C: 13 lg m' - 14.2 lg s' + 20.8. Empty for a text that is no positive number.
std::string StandardImprovement(const std::string& dynamic_stiffness_mn_m3);

}  // namespace velmar::materials
