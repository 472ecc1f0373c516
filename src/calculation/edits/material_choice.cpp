#include "calculation/edits/material_choice.h"

#include <array>
#include <span>

#include "foundation/decimal.h"

namespace velmar::calculation {
namespace {

using elements::FibrousMaterial;
using elements::LayerGroup;
using elements::LayerRow;
using elements::ResilientMaterial;
using elements::Setup;
using elements::StructuralMaterial;

using S = StructuralMaterial;
constexpr std::array kLeafFields = {&S::density_kg_m3,
                                    &S::youngs_modulus_gpa,
                                    &S::critical_frequency_hz,
                                    &S::loss_factor,
                                    &S::poissons_ratio,
                                    &S::surface_mass_kg_m2,
                                    &S::thermal_conductivity_w_mk,
                                    &S::vapour_permeability_dry,
                                    &S::vapour_permeability_wet,
                                    &S::thermal_resistance_m2k_w};
constexpr std::array kSeaFields = {&S::density_kg_m3, &S::youngs_modulus_gpa, &S::critical_frequency_hz,
                                   &S::loss_factor,   &S::poissons_ratio,     &S::thermal_conductance_w_m2k};

using F = FibrousMaterial;
constexpr std::array kSolidFields = {&F::youngs_modulus_gpa, &F::loss_factor, &F::poissons_ratio};

using R = ResilientMaterial;
constexpr std::array kResilientFields = {&R::density_kg_m3, &R::dynamic_stiffness_mn_m3,
                                         &R::impact_improvement_db, &R::resonance_frequency_hz};

template <typename Material>
void Copy(const elements::MaterialRecord<Material>& record, Material& slot, double Material::*field) {
  if (record.Holds(field)) slot.*field = record.values.*field;
}

template <typename Material>
void CopyAll(const elements::MaterialRecord<Material>& record, Material& slot,
             std::span<double Material::*const> fields) {
  for (double Material::*field : fields) Copy(record, slot, field);
}

bool IsLeaf(LayerGroup group) { return group == LayerGroup::kLeaf1 || group == LayerGroup::kLeaf2; }

void FillStructural(const elements::StructuralRecord& record, LayerGroup group, StructuralMaterial& slot) {
  slot.name = record.values.name;
  slot.description = record.values.description;
  const bool whole = IsLeaf(group) || group == LayerGroup::kStratumSolid;
  CopyAll<S>(record, slot, whole ? std::span<double S::*const>(kLeafFields) : kSeaFields);
}

void FillFibrous(const elements::FibrousRecord& record, LayerGroup group, FibrousMaterial& slot) {
  slot.name = record.values.name;
  slot.description = record.values.description;
  Copy(record, slot, &F::density_kg_m3);
  if (group == LayerGroup::kSeaCavityFibre) {
    CopyAll<F>(record, slot, kSolidFields);
    Copy(record, slot, &F::flow_resistance_pa_s_m);
    slot.absorption = record.values.absorption;
    return;
  }
  slot.porous = record.values.porous;
  if (slot.porous) {
    Copy(record, slot, &F::flow_resistance_pa_s_m);
  } else {
    CopyAll<F>(record, slot, kSolidFields);
  }
}

void FillResilient(const elements::ResilientRecord& record, ResilientMaterial& slot) {
  slot.name = record.values.name;
  slot.description = record.values.description;
  CopyAll<R>(record, slot, kResilientFields);
}

/// Rs belongs to the thickness that the table names; the free list reads what does not depend on it.
void TakeFlowResistivity(const elements::FibrousRecord& record, Setup& setup, LayerGroup group, int index) {
  if (group != LayerGroup::kStratumFibre) return;
  const FibrousMaterial& values = record.values;
  const bool known = values.porous && values.thickness_mm > 0.0;
  constexpr double kMetresPerMillimetre = 0.001;
  setup.multilayer.strata.at(static_cast<std::size_t>(index)).flow_resistivity_pa_s_m2 =
      known ? values.flow_resistance_pa_s_m / (values.thickness_mm * kMetresPerMillimetre) : 0.0;
}

/// The default thickness of the record goes to slot and box.
template <typename Material>
void TakeDefaultThickness(const elements::MaterialRecord<Material>& record, LayerRow<Material>& row) {
  Copy(record, row.slot, &Material::thickness_mm);
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
}

template <typename Material>
void TakeThicknessOfBox(LayerRow<Material>& row) {
  if (const auto thickness_mm = ParseDecimal(row.thickness_text)) row.slot.thickness_mm = *thickness_mm;
}

/// Row `index` shows the record without taking it into its slot.
template <typename Material>
void Show(const elements::MaterialRecord<Material>& record, LayerRow<Material>& row) {
  row.listed = record.values.name;
  row.thickness_text = FormatShortest(record.values.thickness_mm);
}

template <typename Material, std::size_t N>
LayerRow<Material>& RowAt(elements::LayerTable<Material, N>& table, int index) {
  return table.rows.at(static_cast<std::size_t>(index));
}

constexpr std::array kStructuralGroups = {LayerGroup::kLeaf1,         LayerGroup::kLeaf2,
                                          LayerGroup::kSeaLeaf1,      LayerGroup::kSeaLeaf2,
                                          LayerGroup::kSeaDamping1,   LayerGroup::kSeaDamping2,
                                          LayerGroup::kSeaCavityMass, LayerGroup::kSeaCavityDamping,
                                          LayerGroup::kStratumSolid};

bool FillsEverySlot(LayerGroup group) {
  return group == LayerGroup::kSeaCavityMass || group == LayerGroup::kSeaCavityDamping ||
         group == LayerGroup::kStratumSolid;
}

bool ReloadStructural(Setup& setup, LayerGroup group, int index, const elements::MaterialLookup& materials) {
  LayerRow<StructuralMaterial>& row = StructuralRow(setup, group, index);
  const auto record = materials.structural(row.listed);
  if (!record) return false;
  FillStructural(*record, group, row.slot);
  if (IsLeaf(group)) Copy(*record, RowAt(setup.leaf1, index).slot, &S::thermal_conductance_w_m2k);
  TakeThicknessOfBox(row);
  return true;
}

bool ReloadFibrous(Setup& setup, LayerGroup group, int index, const elements::MaterialLookup& materials) {
  LayerRow<FibrousMaterial>& row = FibrousRow(setup, group, index);
  const auto record = materials.fibrous(row.listed);
  if (!record) return false;
  FillFibrous(*record, group, row.slot);
  TakeFlowResistivity(*record, setup, group, index);
  TakeThicknessOfBox(row);
  return true;
}

bool ReloadResilient(Setup& setup, int index, const elements::MaterialLookup& materials) {
  LayerRow<ResilientMaterial>& row = RowAt(setup.resilient, index);
  const auto record = materials.resilient(row.listed);
  if (!record) return false;
  FillResilient(*record, row.slot);
  TakeThicknessOfBox(row);
  return true;
}

/// @return false when no table holds the material that the row shows
bool Reload(Setup& setup, LayerGroup group, int index, const elements::MaterialLookup& materials) {
  switch (RowOf(group).family) {
    case elements::MaterialFamily::kStructural:
      return ReloadStructural(setup, group, index, materials);
    case elements::MaterialFamily::kFibrous:
      return ReloadFibrous(setup, group, index, materials);
    case elements::MaterialFamily::kResilient:
      return ReloadResilient(setup, index, materials);
  }
  return false;
}

bool IsTicked(const Setup& setup, LayerGroup group, int index) {
  const auto i = static_cast<std::size_t>(index);
  switch (group) {
    case LayerGroup::kSeaDamping1:
      return setup.sea_leaf1.damping.at(i).ticked;
    case LayerGroup::kSeaDamping2:
      return setup.sea_leaf2.damping.at(i).ticked;
    case LayerGroup::kSeaCavityDamping:
      return setup.sea_cavity.mass_damping.at(i).ticked;
    default:
      return true;
  }
}

template <typename Material>
void LoadRow(Setup& setup, LayerGroup group, int index, LayerRow<Material>& row,
             const elements::MaterialLookup& materials) {
  if (row.listed == row.slot.name || Reload(setup, group, index, materials)) return;
  row.listed.clear();
  row.thickness_text.clear();
  row.slot = {};
}

void LoadRow(Setup& setup, LayerGroup group, int index, const elements::MaterialLookup& materials) {
  switch (RowOf(group).family) {
    case elements::MaterialFamily::kStructural:
      return LoadRow(setup, group, index, StructuralRow(setup, group, index), materials);
    case elements::MaterialFamily::kFibrous:
      return LoadRow(setup, group, index, FibrousRow(setup, group, index), materials);
    case elements::MaterialFamily::kResilient:
      return LoadRow(setup, group, index, RowAt(setup.resilient, index), materials);
  }
}

bool ChooseStructural(Setup& setup, LayerGroup group, int index, const std::string& name,
                      const elements::MaterialLookup& materials) {
  const auto record = materials.structural(name);
  if (!record) return false;
  LayerRow<StructuralMaterial>& row = StructuralRow(setup, group, index);
  row.listed = record->values.name;
  FillStructural(*record, group, row.slot);
  if (IsLeaf(group)) Copy(*record, RowAt(setup.leaf2, index).slot, &S::thermal_conductance_w_m2k);
  TakeDefaultThickness(*record, row);
  return true;
}

bool ChooseFibrous(Setup& setup, LayerGroup group, int index, const std::string& name,
                   const elements::MaterialLookup& materials) {
  const auto record = materials.fibrous(name);
  if (!record) return false;
  LayerRow<FibrousMaterial>& row = FibrousRow(setup, group, index);
  row.listed = record->values.name;
  FillFibrous(*record, group, row.slot);
  TakeFlowResistivity(*record, setup, group, index);
  TakeDefaultThickness(*record, row);
  return true;
}

bool ChooseResilient(Setup& setup, int index, const std::string& name,
                     const elements::MaterialLookup& materials) {
  const auto record = materials.resilient(name);
  if (!record) return false;
  LayerRow<ResilientMaterial>& row = RowAt(setup.resilient, index);
  row.listed = record->values.name;
  FillResilient(*record, row.slot);
  TakeDefaultThickness(*record, row);
  return true;
}

void SelectFirstStructural(Setup& setup, const elements::StructuralRecord& record) {
  for (const LayerGroup group : kStructuralGroups) {
    for (int i = 0; i < RowOf(group).capacity; ++i) {
      LayerRow<StructuralMaterial>& row = StructuralRow(setup, group, i);
      Show(record, row);
      if (i > 0 && !FillsEverySlot(group)) continue;
      FillStructural(record, group, row.slot);
      Copy(record, row.slot, &S::thermal_conductance_w_m2k);
      if (!IsLeaf(group)) Copy(record, row.slot, &S::surface_mass_kg_m2);
      TakeThicknessOfBox(row);
    }
  }
  setup.sea_leaf1.rows[0].slot.poissons_ratio = 0.0;
}

void SelectFirstFibrous(Setup& setup, const elements::FibrousRecord& record) {
  for (const LayerGroup group :
       {LayerGroup::kCavity, LayerGroup::kSeaCavityFibre, LayerGroup::kStratumFibre}) {
    for (int i = 0; i < RowOf(group).capacity; ++i) {
      LayerRow<FibrousMaterial>& row = FibrousRow(setup, group, i);
      Show(record, row);
      FillFibrous(record, group, row.slot);
      TakeFlowResistivity(record, setup, group, i);
      TakeThicknessOfBox(row);
    }
  }
}

}  // namespace

bool IsMaterial(const elements::MaterialLookup& materials, elements::MaterialFamily family,
                const std::string& name) {
  switch (family) {
    case elements::MaterialFamily::kStructural:
      return materials.structural(name).has_value();
    case elements::MaterialFamily::kFibrous:
      return materials.fibrous(name).has_value();
    case elements::MaterialFamily::kResilient:
      return materials.resilient(name).has_value();
  }
  return false;
}

bool ChooseMaterial(Setup& setup, LayerGroup group, int index, const std::string& name,
                    const elements::MaterialLookup& materials) {
  switch (RowOf(group).family) {
    case elements::MaterialFamily::kStructural:
      return ChooseStructural(setup, group, index, name, materials);
    case elements::MaterialFamily::kFibrous:
      return ChooseFibrous(setup, group, index, name, materials);
    case elements::MaterialFamily::kResilient:
      return ChooseResilient(setup, index, name, materials);
  }
  return false;
}

void ReloadLayers(Setup& setup, LayerGroup group, const elements::MaterialLookup& tables) {
  const elements::MaterialLookup materials = elements::ForOneOperation(tables);
  for (int i = 0; i < RowsInUse(setup, group); ++i) Reload(setup, group, i, materials);
}

void LoadRowsInUse(Setup& setup, const elements::MaterialLookup& tables) {
  const elements::MaterialLookup materials = elements::ForOneOperation(tables);
  for (const elements::LayerGroupRow& row : elements::LayerGroups()) {
    for (int i = 0; i < RowsInUse(setup, row.group); ++i) {
      if (IsTicked(setup, row.group, i)) LoadRow(setup, row.group, i, materials);
    }
  }
}

void SelectFirstMaterials(Setup& setup, const elements::StructuralRecord* structural,
                          const elements::FibrousRecord* fibrous,
                          const elements::ResilientRecord* resilient) {
  if (structural != nullptr) SelectFirstStructural(setup, *structural);
  if (fibrous != nullptr) SelectFirstFibrous(setup, *fibrous);
  if (resilient != nullptr) {
    for (LayerRow<ResilientMaterial>& row : setup.resilient.rows) {
      Show(*resilient, row);
      FillResilient(*resilient, row.slot);
      TakeThicknessOfBox(row);
    }
  }
}

}  // namespace velmar::calculation
