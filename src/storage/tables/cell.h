#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "storage/tables/schema.h"

namespace velmar::storage {

/// A value of a table: nothing (null), a number, a yes/no, a text.
using Cell = std::variant<std::monostate, double, bool, std::string>;

/// What `text` stands for in a column of `type`. An empty text is null in every type; numbers may have a
/// decimal comma or point; yes/no is 1, 0, vero, falso, true, false, sì, si, no in any case.
/// @return nothing when the text is no value of that type
std::optional<Cell> ParseCell(ColumnType type, std::string_view text);

/// The text that ParseCell() reads back: null empty, numbers in their shortest form with a decimal point,
/// yes/no as 1 and 0.
std::string FormatCell(const Cell& cell);

}  // namespace velmar::storage
