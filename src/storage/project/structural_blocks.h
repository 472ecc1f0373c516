#pragma once

#include "elements/layers.h"
#include "foundation/decimal.h"
#include "storage/project/family_parts.h"
#include "storage/project/line_cursor.h"
#include "storage/project/line_writer.h"
#include "storage/project/text_rules.h"

namespace velmar::storage {

/// What opens the block of a layer; the layer's number and a colon follow.
inline constexpr const char* kMaterialLabel = "MATERIALE";
/// No row of a layer table has more sheets. Larger numbers come from damaged files only.
inline constexpr int kMaxMultiplicity = 999;

/// "MATERIALE n:", with n from 1.
void WriteMaterialLabel(LineWriter& out, int number);
/// `count` as a list of `lowest` to `highest` can hold it.
int HeldCount(int count, int lowest, int highest);
/// A number of sheets as the reader takes it.
int HeldMultiplicity(int multiplicity);

/// Lets list and thickness box show what the slot holds.
template <typename Material>
void ShowSlot(elements::LayerRow<Material>& row) {
  row.listed = row.slot.name;
  row.thickness_text = FormatShortest(row.slot.thickness_mm);
}

/// One layer of a leaf, 17 lines: blank; name; description; s; number of sheets (integer); density; E; fc;
/// loss factor; Poisson's ratio; m'; Lambda; C; Sigma_a; Sigma_u; R; blank.
void WriteLeafLayer(LineWriter& out, const elements::LayerRow<elements::StructuralMaterial>& row,
                    LineBreaks breaks);
void ReadLeafLayer(PartInput& in, elements::LayerRow<elements::StructuralMaterial>& row);

/// The layers of a leaf or a floor: the count less one, then for each layer 18 lines: label; blank; name;
/// description; s; number of sheets (integer); density; E; fc; loss factor; Poisson's ratio; m'; Lambda; C;
/// Sigma_a; Sigma_u; R; blank.
void WriteLeaf(LineWriter& out, const elements::LeafLayers& leaf, LineBreaks breaks);
void ReadLeaf(PartInput& in, elements::LeafLayers& leaf);

/// A layer of the SEA families, 10 lines: name; description; s; density; E; fc; loss factor; Poisson's ratio;
/// m'; C.
void WriteSeaLayer(LineWriter& out, const elements::LayerRow<elements::StructuralMaterial>& row);
void ReadSeaLayer(PartInput& in, elements::LayerRow<elements::StructuralMaterial>& row);

}  // namespace velmar::storage
