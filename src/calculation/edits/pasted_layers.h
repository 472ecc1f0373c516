#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::calculation {

/// The cells of a table, line by line, without blanks around them.
using TableCells = std::vector<std::vector<std::string>>;

/// Puts a table of layers into the rows of `group` from `first` on: material, thickness in mm (the material's
/// own where the cell is empty or missing), number of equal sheets (1 where it is). A line of headings over
/// them, a number of the layer before the material and the unit "mm" behind a thickness may be there. Where
/// the number of rows is free it grows as far as the table needs; rows behind the table stay as they are.
/// @return why the table is refused; `setup` is as it was then
/// @throws std::out_of_range for a row that `group` has not
std::optional<MessageLine> PutTable(elements::Setup& setup, elements::LayerGroup group, int first,
                                    TableCells lines, const elements::MaterialLookup& materials);

}  // namespace velmar::calculation
