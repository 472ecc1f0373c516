#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace velmar::elements {

/// A material of leaves, floors and masses in a cavity: a row of `Modulo_A1`, or the copy of one that a layer
/// holds.
struct StructuralMaterial {
  std::string name{};
  std::string description{};
  double thickness_mm = 0.0;  ///< of one sheet
  double density_kg_m3 = 0.0;
  double youngs_modulus_gpa = 0.0;
  double critical_frequency_hz = 0.0;  ///< as tabulated; the models form their own
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  double surface_mass_kg_m2 = 0.0;  ///< as tabulated; density times thickness is what counts

  // Carried along for reports and project files.
  double thermal_conductivity_w_mk = 0.0;  ///< Lambda
  double thermal_conductance_w_m2k = 0.0;  ///< C
  double vapour_permeability_dry = 0.0;    ///< Sigma_a, 10^-12 kg/(m s Pa)
  double vapour_permeability_wet = 0.0;    ///< Sigma_u, 10^-12 kg/(m s Pa)
  double thermal_resistance_m2k_w = 0.0;   ///< R

  bool operator==(const StructuralMaterial&) const = default;
};

/// The bands of an absorption coefficient: 100 Hz to 6300 Hz.
inline constexpr std::size_t kAbsorptionBandCount = 19;
inline constexpr std::array<double, kAbsorptionBandCount> kAbsorptionBandCentres = {
    100, 125, 160, 200, 250, 315, 400, 500, 630, 800, 1000, 1250, 1600, 2000, 2500, 3150, 4000, 5000, 6300};

/// Absorption coefficient per band; kNoAbsorption marks a band without a value.
using Absorption = std::array<float, kAbsorptionBandCount>;
inline constexpr float kNoAbsorption = -1.0F;

/// An Absorption in which no band has a value.
constexpr Absorption UnknownAbsorption() {
  Absorption absorption{};
  for (float& band : absorption) band = kNoAbsorption;
  return absorption;
}

/// A material of a cavity: a row of `Modulo_A2`, or the copy of one that a layer holds.
struct FibrousMaterial {
  std::string name{};
  std::string description{};
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  /// `fonoassorbente`: described by its flow resistance and absorption; otherwise a solid by modulus, loss
  /// factor and Poisson's ratio.
  bool porous = false;
  double youngs_modulus_gpa = 0.0;
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  double flow_resistance_pa_s_m = 0.0;  ///< Rs
  Absorption absorption = UnknownAbsorption();

  bool operator==(const FibrousMaterial&) const = default;
};

/// A resilient layer under a floating floor: a row of `Modulo_A3`, or the copy of one that a layer holds.
struct ResilientMaterial {
  std::string name{};
  std::string description{};
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  double dynamic_stiffness_mn_m3 = 0.0;  ///< s'
  double impact_improvement_db = 0.0;    ///< Delta Ln,w
  double resonance_frequency_hz = 0.0;   ///< f0

  bool operator==(const ResilientMaterial&) const = default;
};

}  // namespace velmar::elements
