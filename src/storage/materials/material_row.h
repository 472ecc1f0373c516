#pragma once

#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "elements/materials.h"
#include "storage/tables/cell.h"
#include "storage/tables/schema.h"

namespace velmar::storage {

/// No picture, in the column "Immagine".
inline constexpr const char* kNoPicture = "senza";

/// A whole row of a material table: what layers take from it, and what only lists and editors use.
template <typename Material>
struct MaterialRow {
  elements::MaterialRecord<Material> record{};
  std::string keyword{};             ///< "Parola chiave"; empty when the row has none
  std::string picture = kNoPicture;  ///< "Immagine"; structural materials have none
  std::string source{};              ///< "Fonte": where the values come from
};

using StructuralRow = MaterialRow<elements::StructuralMaterial>;
using FibrousRow = MaterialRow<elements::FibrousMaterial>;
using ResilientRow = MaterialRow<elements::ResilientMaterial>;

/// What a list of materials needs of a row.
struct ListedMaterial {
  std::string name{};
  std::string keyword{};  ///< empty when the row has none
};

/// The table of a kind of material.
template <typename Material>
TableSchema TableOf();
/// The table of a family.
TableSchema TableOf(elements::MaterialFamily family);

/// The row that `cells` hold, in the order of the table's schema. A null number is in `record.nulls` and 0 in
/// its values; an absorption coefficient without a value is -1.
template <typename Material>
MaterialRow<Material> RowFromCells(const std::vector<Cell>& cells);

/// The cells of `row` in the order of the table's schema.
template <typename Material>
std::vector<Cell> CellsFromRow(const MaterialRow<Material>& row);

}  // namespace velmar::storage
