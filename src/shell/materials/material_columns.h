#pragma once

#include <QString>
#include <cstddef>
#include <vector>

#include "elements/layer_groups.h"
#include "shell/windows/window_tools.h"
#include "storage/tables/cell.h"

namespace velmar::shell {

/// A column of the grid.
struct MaterialColumn {
  std::size_t cell = 0;  ///< place in a row of the table
  QString heading{};     ///< with the unit
  QString tip{};         ///< what it is, in words
  storage::ColumnType type{};
  bool main = false;  ///< shown without being asked for
};

/// The columns of a family's grid: the name first, then what a choice is made by, then the rest of the table.
std::vector<MaterialColumn> ColumnsOf(elements::MaterialFamily family, const WindowTools& tools);

/// `cell` as the grid shows it: null is empty, numbers have a decimal comma.
QString Shown(const storage::Cell& cell, const WindowTools& tools);

}  // namespace velmar::shell
