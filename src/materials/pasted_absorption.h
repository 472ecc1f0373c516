#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/message.h"

namespace velmar::materials {

/// What a paste puts into the absorption boxes, one text a band.
struct PastedAbsorption {
  std::size_t first_band = 0;
  std::vector<std::string> texts{};
};

/// Whether `text` holds more than one cell of a spreadsheet: a tab, a line break or a semicolon.
bool IsColumn(std::string_view text);

/// Reads cells separated by tabs, line breaks or semicolons, as a spreadsheet hands them over: numbers with
/// decimal comma or point. An empty cell empties its box, the line break behind the last cell counts for
/// nothing. The values go into the bands from `band` on; a whole set of 19 always begins at the first.
/// @return or why nothing is pasted: a cell is no number, or there are more than bands from `band` on
std::variant<PastedAbsorption, Message> ReadPastedAbsorption(std::string_view text, std::size_t band);

}  // namespace velmar::materials
