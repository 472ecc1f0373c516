#include "calculation/runs/sea_inputs.h"

#include <algorithm>
#include <optional>

#include "calculation/runs/entered_numbers.h"

namespace velmar::calculation {
namespace {

using elements::StructuralMaterial;

bool HasMaterial(const StructuralMaterial& slot) { return !slot.name.empty() || slot.thickness_mm != 0.0; }

std::optional<models::SeaDampingSheet> DampingOf(const elements::DampingRow& damping) {
  if (!damping.ticked) return std::nullopt;
  const StructuralMaterial& slot = damping.row.slot;
  return models::SeaDampingSheet{.thickness_mm = slot.thickness_mm,
                                 .density_kg_m3 = slot.density_kg_m3,
                                 .youngs_modulus_gpa = slot.youngs_modulus_gpa};
}

models::SeaFill FillOf(const elements::FibrousMaterial& slot) {
  models::SeaFill fill{
      .name = slot.name, .thickness_mm = slot.thickness_mm, .density_kg_m3 = slot.density_kg_m3};
  std::ranges::copy(slot.absorption, fill.absorption.begin());
  return fill;
}

models::SeaCavityMass MassOf(const StructuralMaterial& slot, const elements::DampingRow& damping) {
  return {.thickness_mm = slot.thickness_mm,
          .density_kg_m3 = slot.density_kg_m3,
          .youngs_modulus_gpa = slot.youngs_modulus_gpa,
          .loss_factor = slot.loss_factor,
          .poissons_ratio = slot.poissons_ratio,
          .damping = DampingOf(damping)};
}

}  // namespace

models::SeaSide SeaSideOf(const elements::SeaLeaf& leaf) {
  models::SeaSide side;
  for (std::size_t i = 0; i < static_cast<std::size_t>(leaf.count); ++i) {
    const StructuralMaterial& slot = leaf.rows.at(i).slot;
    if (!HasMaterial(slot)) continue;
    side.at(i) = models::SeaLayer{
        .thickness_mm = slot.thickness_mm,
        .density_kg_m3 = slot.density_kg_m3,
        .youngs_modulus_gpa = slot.youngs_modulus_gpa,
        .loss_factor = slot.loss_factor,
        .poissons_ratio = slot.poissons_ratio,
        .damping = {DampingOf(leaf.damping.at(2 * i)), DampingOf(leaf.damping.at(2 * i + 1))}};
  }
  return side;
}

models::SeaCavity SeaCavityOf(const elements::SeaCavity& cavity) {
  models::SeaCavity input{
      .type = cavity.type,
      .depth_mm = EnteredNumberOrZero(cavity.depth_text, {elements::Field::kSeaCavityDepth})};
  for (std::size_t j = 0; j < static_cast<std::size_t>(FibreCount(cavity.type)); ++j) {
    input.fills.at(j) = FillOf(cavity.fibres.at(j).slot);
  }
  for (std::size_t k = 0; k < static_cast<std::size_t>(MassCount(cavity.type)); ++k) {
    input.masses.at(k) = MassOf(cavity.masses.at(k).slot, cavity.mass_damping.at(k));
  }
  return input;
}

}  // namespace velmar::calculation
