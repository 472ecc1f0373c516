#include "application/material_sources.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "storage/materials/material_store.h"

namespace velmar::application {
namespace {

using elements::FibrousMaterial;
using elements::ResilientMaterial;
using elements::StructuralMaterial;

/// The numbers that calculations read of a material, but for the thickness.
std::vector<double StructuralMaterial::*> Numbers(const StructuralMaterial&) {
  return {&StructuralMaterial::density_kg_m3, &StructuralMaterial::youngs_modulus_gpa,
          &StructuralMaterial::loss_factor, &StructuralMaterial::poissons_ratio};
}
std::vector<double FibrousMaterial::*> Numbers(const FibrousMaterial& material) {
  if (material.porous) return {&FibrousMaterial::density_kg_m3, &FibrousMaterial::flow_resistance_pa_s_m};
  return {&FibrousMaterial::density_kg_m3, &FibrousMaterial::youngs_modulus_gpa,
          &FibrousMaterial::loss_factor, &FibrousMaterial::poissons_ratio};
}
std::vector<double ResilientMaterial::*> Numbers(const ResilientMaterial&) {
  return {&ResilientMaterial::density_kg_m3, &ResilientMaterial::dynamic_stiffness_mn_m3};
}

template <typename Material>
bool IsChanged(const Material& layer, const elements::MaterialRecord<Material>& row) {
  return std::ranges::any_of(Numbers(row.values), [&](double Material::*number) {
    return row.Holds(number) && layer.*number != row.values.*number;
  });
}

template <typename Material>
std::string SourceOf(const storage::MaterialStore& store, const Material& layer,
                     const presentation::Words& words) {
  if (layer.name.empty()) return {};
  try {
    const auto row = store.Find<Material>(layer.name);
    if (!row) return words(kSourceProjectRow);
    std::string source = row->source.empty() ? words(kSourceListRow) : row->source;
    if (IsChanged(layer, row->record)) source += " " + words(kSourceChangedRow);
    return source;
  } catch (const Failure&) {
    return {};
  }
}

}  // namespace

presentation::MaterialSources MaterialSourcesIn(const std::filesystem::path& file,
                                                const presentation::Words& words) {
  const storage::MaterialStore store(file);
  return {.structural = [=](const StructuralMaterial& one) { return SourceOf(store, one, words); },
          .fibrous = [=](const FibrousMaterial& one) { return SourceOf(store, one, words); },
          .resilient = [=](const ResilientMaterial& one) { return SourceOf(store, one, words); }};
}

}  // namespace velmar::application
