#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "elements/layers.h"
#include "elements/setup.h"
#include "foundation/decimal.h"

namespace velmar::presentation {

/// The material that a layer row shows: the one in use, or the listed one where none was taken over yet.
template <typename Material>
const std::string& NameOf(const elements::LayerRow<Material>& row) {
  return row.slot.name.empty() ? row.listed : row.slot.name;
}

/// How many rows of `table` are in use, within its capacity.
template <typename Material, std::size_t N>
int RowsInUse(const elements::LayerTable<Material, N>& table) {
  return std::clamp(table.count, 0, elements::LayerTable<Material, N>::kCapacity);
}

/// How many layers of the SEA leaf are in use.
inline int RowsInUse(const elements::SeaLeaf& leaf) {
  return std::clamp(leaf.count, 0, elements::SeaLeaf::kCapacity);
}

/// The number that a text box holds, 0 when it holds none.
inline double NumberOf(const std::string& text) { return ParseDecimal(text).value_or(0.0); }

/// Whether `calculation` reads the thickness of the fibre in the cavity (`Text31`). Elsewhere the fibre fills
/// the cavity.
inline bool ReadsFibreThickness(elements::Calculation calculation) {
  return calculation == elements::Calculation::kDoubleWallBrickTorvalle ||
         calculation == elements::Calculation::kDoubleWallPlasterboardSeparateStuds;
}

/// Thickness of the base element of a lining, mm; one that is not given counts as 200 mm.
inline double BaseThicknessOf(const elements::Setup& setup) {
  return setup.base.thickness_mm == 0.0 ? elements::kDefaultBaseThicknessMm : setup.base.thickness_mm;
}

}  // namespace velmar::presentation
