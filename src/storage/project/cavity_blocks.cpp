#include "storage/project/cavity_blocks.h"

#include <optional>

#include "storage/project/structural_blocks.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {
namespace {

using elements::CavityLayers;
using elements::FibrousMaterial;
using Row = elements::LayerRow<FibrousMaterial>;

void WriteNames(LineWriter& out, const FibrousMaterial& slot, LineBreaks breaks) {
  out.Text(WithoutLineBreaks(slot.name, breaks));
  out.Text(WithoutLineBreaks(slot.description, breaks));
}

FibrousMaterial ReadNames(LineCursor& lines) {
  FibrousMaterial slot;
  slot.name = lines.Text();
  slot.description = lines.Text();
  return slot;
}

void WriteSolid(LineWriter& out, const FibrousMaterial& slot) {
  out.Number(slot.youngs_modulus_gpa);
  out.Number(slot.loss_factor);
  out.Number(slot.poissons_ratio);
}

void ReadSolid(LineCursor& lines, FibrousMaterial& slot) {
  slot.youngs_modulus_gpa = lines.Number();
  slot.loss_factor = lines.Number();
  slot.poissons_ratio = lines.Number();
}

}  // namespace

void WriteCavityLayer(LineWriter& out, const Row& row) {
  out.Blank();
  WriteNames(out, row.slot, LineBreaks::kBlank);
  out.Number(row.slot.thickness_mm);
  out.Integer(HeldMultiplicity(row.multiplicity));
  out.Number(row.slot.density_kg_m3);
  out.Boolean(row.slot.porous);
  if (row.slot.porous) {
    out.Number(row.slot.flow_resistance_pa_s_m);
  } else {
    WriteSolid(out, row.slot);
  }
  out.Blank();
}

void ReadCavityLayer(PartInput& in, Row& row) {
  in.lines.Blank();
  row.slot = ReadNames(in.lines);
  row.slot.thickness_mm = in.lines.Number();
  row.multiplicity = in.lines.Integer(0, kMaxMultiplicity);
  row.slot.density_kg_m3 = in.lines.Number();
  row.slot.porous = in.lines.Boolean();
  if (row.slot.porous) {
    row.slot.flow_resistance_pa_s_m = in.lines.Number();
  } else {
    ReadSolid(in.lines, row.slot);
  }
  in.lines.Blank();
  ShowSlot(row);
}

void WriteCavityLayers(LineWriter& out, const CavityLayers& layers) {
  const int count = HeldCount(layers.count, 1, CavityLayers::kCapacity);
  out.Integer(count - 1);
  for (int i = 0; i < count; ++i) {
    WriteMaterialLabel(out, i + 1);
    WriteCavityLayer(out, layers.rows.at(static_cast<std::size_t>(i)));
  }
}

void ReadCavityLayers(PartInput& in, CavityLayers& layers) {
  layers.count = in.lines.Integer(0, CavityLayers::kCapacity - 1) + 1;
  for (int i = 0; i < layers.count; ++i) {
    in.lines.Label(kMaterialLabel);
    ReadCavityLayer(in, layers.rows.at(static_cast<std::size_t>(i)));
  }
}

void WriteSeaFibre(LineWriter& out, const Row& row) {
  WriteNames(out, row.slot, LineBreaks::kCut);
  out.Number(row.slot.thickness_mm);
  out.Number(row.slot.density_kg_m3);
  WriteSolid(out, row.slot);
}

void ReadSeaFibre(PartInput& in, Row& row) {
  row.slot = ReadNames(in.lines);
  row.slot.thickness_mm = in.lines.Number();
  row.slot.density_kg_m3 = in.lines.Number();
  ReadSolid(in.lines, row.slot);
  if (in.materials.fibrous) {
    if (const std::optional<elements::FibrousRecord> record = in.materials.fibrous(row.slot.name)) {
      row.slot.porous = record->values.porous;
      row.slot.flow_resistance_pa_s_m = record->values.flow_resistance_pa_s_m;
      row.slot.absorption = record->values.absorption;
    }
  }
  ShowSlot(row);
}

}  // namespace velmar::storage
