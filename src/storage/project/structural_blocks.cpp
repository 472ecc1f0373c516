#include "storage/project/structural_blocks.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace velmar::storage {
namespace {

using elements::LeafLayers;
using elements::StructuralMaterial;
using Row = elements::LayerRow<StructuralMaterial>;
using Field = double StructuralMaterial::*;
using S = StructuralMaterial;

/// The numbers behind the number of sheets of a leaf's layer.
constexpr std::array<Field, 11> kLeafFields = {&S::density_kg_m3,
                                               &S::youngs_modulus_gpa,
                                               &S::critical_frequency_hz,
                                               &S::loss_factor,
                                               &S::poissons_ratio,
                                               &S::surface_mass_kg_m2,
                                               &S::thermal_conductivity_w_mk,
                                               &S::thermal_conductance_w_m2k,
                                               &S::vapour_permeability_dry,
                                               &S::vapour_permeability_wet,
                                               &S::thermal_resistance_m2k_w};
/// The numbers behind the thickness of a SEA layer.
constexpr std::array<Field, 7> kSeaFields = {
    &S::density_kg_m3,  &S::youngs_modulus_gpa, &S::critical_frequency_hz,    &S::loss_factor,
    &S::poissons_ratio, &S::surface_mass_kg_m2, &S::thermal_conductance_w_m2k};

/// What no model reads: the material table's word counts more than the file's.
constexpr std::array<Field, 7> kRefreshedLeafFields = {
    &S::critical_frequency_hz,     &S::surface_mass_kg_m2,      &S::thermal_conductivity_w_mk,
    &S::thermal_conductance_w_m2k, &S::vapour_permeability_dry, &S::vapour_permeability_wet,
    &S::thermal_resistance_m2k_w};
constexpr std::array<Field, 3> kRefreshedSeaFields = {&S::critical_frequency_hz, &S::surface_mass_kg_m2,
                                                      &S::thermal_conductance_w_m2k};

void Refresh(StructuralMaterial& slot, const elements::MaterialLookup& materials,
             std::span<const Field> fields) {
  if (!materials.structural) return;
  const std::optional<elements::StructuralRecord> record = materials.structural(slot.name);
  if (!record) return;
  for (const Field field : fields) {
    if (record->Holds(field)) slot.*field = record->values.*field;
  }
}

void WriteNames(LineWriter& out, const StructuralMaterial& slot, LineBreaks breaks) {
  out.Text(WithoutLineBreaks(slot.name, breaks));
  out.Text(WithoutLineBreaks(slot.description, breaks));
}

/// A slot of which nothing but what the file holds is known.
StructuralMaterial ReadNames(LineCursor& lines) {
  StructuralMaterial slot;
  slot.name = lines.Text();
  slot.description = lines.Text();
  return slot;
}

}  // namespace

void WriteMaterialLabel(LineWriter& out, int number) {
  out.Text(std::string(kMaterialLabel) + " " + std::to_string(number) + ":");
}

int HeldCount(int count, int lowest, int highest) { return std::clamp(count, lowest, highest); }

int HeldMultiplicity(int multiplicity) { return std::clamp(multiplicity, 0, kMaxMultiplicity); }

void WriteLeafLayer(LineWriter& out, const Row& row, LineBreaks breaks) {
  out.Blank();
  WriteNames(out, row.slot, breaks);
  out.Number(row.slot.thickness_mm);
  out.Integer(HeldMultiplicity(row.multiplicity));
  for (const Field field : kLeafFields) out.Number(row.slot.*field);
  out.Blank();
}

void ReadLeafLayer(PartInput& in, Row& row) {
  in.lines.Blank();
  row.slot = ReadNames(in.lines);
  row.slot.thickness_mm = in.lines.Number();
  row.multiplicity = in.lines.Integer(0, kMaxMultiplicity);
  for (const Field field : kLeafFields) row.slot.*field = in.lines.Number();
  in.lines.Blank();
  Refresh(row.slot, in.materials, kRefreshedLeafFields);
  ShowSlot(row);
}

void WriteLeaf(LineWriter& out, const LeafLayers& leaf, LineBreaks breaks) {
  const int count = HeldCount(leaf.count, 1, LeafLayers::kCapacity);
  out.Integer(count - 1);
  for (int i = 0; i < count; ++i) {
    WriteMaterialLabel(out, i + 1);
    WriteLeafLayer(out, leaf.rows.at(static_cast<std::size_t>(i)), breaks);
  }
}

void ReadLeaf(PartInput& in, LeafLayers& leaf) {
  leaf.count = in.lines.Integer(0, LeafLayers::kCapacity - 1) + 1;
  for (int i = 0; i < leaf.count; ++i) {
    in.lines.Label(kMaterialLabel);
    ReadLeafLayer(in, leaf.rows.at(static_cast<std::size_t>(i)));
  }
}

void WriteSeaLayer(LineWriter& out, const Row& row) {
  WriteNames(out, row.slot, LineBreaks::kCut);
  out.Number(row.slot.thickness_mm);
  for (const Field field : kSeaFields) out.Number(row.slot.*field);
}

void ReadSeaLayer(PartInput& in, Row& row) {
  row.slot = ReadNames(in.lines);
  row.slot.thickness_mm = in.lines.Number();
  for (const Field field : kSeaFields) row.slot.*field = in.lines.Number();
  Refresh(row.slot, in.materials, kRefreshedSeaFields);
  ShowSlot(row);
}

}  // namespace velmar::storage
