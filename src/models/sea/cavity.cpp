#include "models/sea/cavity.h"

#include <cmath>

#include "foundation/failure.h"
#include "models/sea/bridges.h"
#include "models/sea/leaf_transmission.h"
#include "models/sea/porous_layer.h"
#include "models/sea/power_ratio.h"

namespace velmar::models {
namespace {

constexpr double kMillimetresPerMetre = 1000.0;

/// A mass layer keeps its whole modulus, unlike a layer of a side.
SeaPlateInput PlateOfMass(const SeaCavityMass& mass, const SeaElementSize& size) {
  SeaLayer layer{.thickness_mm = mass.thickness_mm,
                 .density_kg_m3 = mass.density_kg_m3,
                 .poissons_ratio = mass.poissons_ratio};
  layer.damping[0] = mass.damping;
  SeaPlateInput input = PlateOf(layer, size, kDoubleWallRadiationCap);
  input.sheets[0].youngs_modulus_pa = 1e9 * mass.youngs_modulus_gpa;
  return input;
}

/// @return the surface mass, kg/m²
double MassPower(const SeaCavityMass& mass, const SeaElementSize& size, HzSpectrum& power_ratio) {
  const SeaPlate plate = RequirePlate(PlateOfMass(mass, size));
  const SeaLayer damping{.loss_factor = mass.loss_factor, .damping = {mass.damping}};
  SeaLeafPowerRatio(plate.radiation_efficiency,
                    {.longitudinal_speed_m_s = plate.longitudinal_speed_m_s,
                     .surface_mass_kg_m2 = plate.surface_mass_kg_m2,
                     .thickness_m = plate.thickness_m,
                     .loss_factor = DampedLossFactor(damping)},
                    power_ratio);
  return plate.surface_mass_kg_m2;
}

void FillPower(const std::optional<SeaFill>& fill, HzSpectrum& power_ratio) {
  SeaPorousLayer layer;
  HzSpectrum absorption{};
  if (fill) {
    layer = {.is_present = true,
             .thickness_m = fill->thickness_mm / kMillimetresPerMetre,
             .density_kg_m3 = fill->density_kg_m3};
    absorption = SeaAbsorptionPerHz(fill->absorption);
  }
  MultiplyPorousLayer(layer, absorption, power_ratio);
}

/// The masses' own power where they do not move as one, their mass law where they do.
void CombineMasses(const SeaMassPair& masses, HzSpectrum& power_ratio) {
  const std::size_t end = LastMassLawHz(masses);
  for (std::size_t f = 1; f <= end; ++f) {
    const double product = masses.Total() * static_cast<double>(f);
    power_ratio[f] = product * product * kMassLawFactor;
  }
}

/// Adds a mass layer to what the masses hand to the heavier side; a frequency at which it holds nothing back
/// adds nothing.
void AddExtra(const HzSpectrum& power_ratio, HzSpectrum& extra) {
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    extra[f] += power_ratio[f] > 1.0 ? power_ratio[f] : 0.0;
  }
}

}  // namespace

HzSpectrum SeaCavityCombine(const SeaCavityParts& parts) {
  HzSpectrum sum_db{};
  HzSpectrum bridges{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    sum_db[f] = parts.first_mass_db[f] + parts.second_mass_db[f] + parts.fills_db[f];
    bridges[f] = parts.first_bridge[f] + parts.second_bridge[f];
  }
  HzSpectrum ratio = PowerRatiosOf(sum_db);
  CombineMasses(parts.masses, ratio);
  AddBridge(bridges, ratio);
  return LevelsOf(ratio);
}

SeaCavityPower CavityPower(const SeaCavity& cavity, const SeaElementSize& size, const HzSpectrum& bridge) {
  const SeaCavity shown = ShownCavity(cavity);
  SeaCavityPower power;
  power.cavity.fill(1.0);
  for (const auto& fill : shown.fills) FillPower(fill, power.cavity);

  std::array<double, 2> masses_kg_m2{};
  HzSpectrum mass_power{};
  for (std::size_t i = 0; i < shown.masses.size(); ++i) {
    if (!shown.masses[i]) continue;
    masses_kg_m2[i] = MassPower(*shown.masses[i], size, mass_power);
    for (std::size_t f = 1; f <= kHighestHz; ++f) power.cavity[f] *= mass_power[f];
    AddExtra(mass_power, power.extra);
    power.has_extra = true;
  }
  if (power.has_extra) {
    for (std::size_t f = 1; f <= kHighestHz; ++f)
      power.extra[f] = power.extra[f] < 1.0 ? 1.0 : power.extra[f];
  }
  const double distance_m = shown.masses[0] ? shown.masses[0]->thickness_mm / kMillimetresPerMetre : 0.0;
  CombineMasses({.first_kg_m2 = masses_kg_m2[0], .second_kg_m2 = masses_kg_m2[1], .distance_m = distance_m},
                power.cavity);
  AddBridge(bridge, power.cavity);
  return power;
}

SeaCavityLevels SeaCavityLayers(const SeaCavity& cavity, const SeaElementSize& size,
                                const HzSpectrum& first_bridge, const HzSpectrum& second_bridge) {
  HzSpectrum bridges{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) bridges[f] = first_bridge[f] + second_bridge[f];
  const SeaCavityPower power = CavityPower(cavity, size, bridges);
  SeaCavityLevels levels{.cavity_db = LevelsOf(power.cavity), .extra_power = power.extra};
  for (const auto& fill : ShownCavity(cavity).fills) {
    if (fill) levels.fill_thickness_m += fill->thickness_mm / kMillimetresPerMetre;
  }
  return levels;
}

}  // namespace velmar::models
