#include "storage/project/resilient_block.h"

#include <array>
#include <string>

#include "storage/project/structural_blocks.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {
namespace {

using elements::ResilientLayers;
using elements::ResilientMaterial;
using Row = elements::LayerRow<ResilientMaterial>;
using R = ResilientMaterial;

constexpr const char* kNone = "Niente";
/// The numbers behind the number of sheets.
constexpr std::array<double R::*, 4> kFields = {&R::density_kg_m3, &R::dynamic_stiffness_mn_m3,
                                                &R::impact_improvement_db, &R::resonance_frequency_hz};

/// @return false where the file says that there are no resilient layers after all
bool ReadLayer(LineCursor& lines, Row& row) {
  if (lines.NextIsOneOf({kNone})) return false;
  lines.Label(kMaterialLabel);
  lines.Blank();
  if (lines.NextIsOneOf({kNone})) return false;
  row.slot.name = lines.Text();
  row.slot.description = lines.Text();
  row.slot.thickness_mm = lines.Number();
  row.multiplicity = lines.Integer(0, kMaxMultiplicity);
  for (double R::*field : kFields) row.slot.*field = lines.Number();
  lines.Blank();
  ShowSlot(row);
  return true;
}

}  // namespace

void WriteResilientLayers(LineWriter& out, const ResilientLayers& layers) {
  const int count = HeldCount(layers.count, 0, ResilientLayers::kCapacity);
  out.Integer(count - 1);
  for (int i = 0; i < count; ++i) {
    const Row& row = layers.rows.at(static_cast<std::size_t>(i));
    WriteMaterialLabel(out, i + 1);
    out.Blank();
    out.Text(WithoutLineBreaks(row.slot.name, LineBreaks::kCut));
    out.Text(WithoutLineBreaks(row.slot.description, LineBreaks::kCut));
    out.Number(row.slot.thickness_mm);
    out.Text(std::to_string(HeldMultiplicity(row.multiplicity)));
    for (double R::*field : kFields) out.Number(row.slot.*field);
    out.Blank();
  }
}

void ReadResilientLayers(PartInput& in, ResilientLayers& layers) {
  const int count = in.lines.Integer(-1, ResilientLayers::kCapacity - 1) + 1;
  layers.count = 0;
  for (int i = 0; i < count; ++i) {
    if (!ReadLayer(in.lines, layers.rows.at(static_cast<std::size_t>(i)))) return;
  }
  layers.count = count;
}

}  // namespace velmar::storage
