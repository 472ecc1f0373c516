#include "materials/pasted_absorption.h"

#include <algorithm>
#include <string>

#include "elements/materials.h"
#include "foundation/decimal.h"
#include "foundation/message_rows.h"

namespace velmar::materials {
namespace {

constexpr std::string_view kSeparators = "\t\n\r;";
constexpr std::string_view kBlanks = " \xC2\xA0";  // the no-break space is two bytes

std::string Trimmed(std::string_view cell) {
  const std::size_t first = cell.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return std::string(cell.substr(first, cell.find_last_not_of(kBlanks) - first + 1));
}

std::vector<std::string> CellsOf(std::string_view text) {
  std::vector<std::string> cells;
  for (;;) {
    const std::size_t end = text.find_first_of(kSeparators);
    cells.push_back(Trimmed(text.substr(0, end)));
    if (end == std::string_view::npos) break;
    const bool pair = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (pair ? 2 : 1));
  }
  if (cells.size() > 1 && cells.back().empty()) cells.pop_back();
  return cells;
}

}  // namespace

bool IsColumn(std::string_view text) { return text.find_first_of(kSeparators) != std::string_view::npos; }

std::variant<PastedAbsorption, Message> ReadPastedAbsorption(std::string_view text, std::size_t band) {
  PastedAbsorption pasted{band, CellsOf(text)};
  bool any = false;
  for (std::string& cell : pasted.texts) {
    if (cell.empty()) continue;
    if (!ParseDecimal(cell)) return Message{{kPastedNoNumbersRow}};
    std::ranges::replace(cell, '.', ',');
    any = true;
  }
  if (!any) return Message{{kPastedNoNumbersRow}};
  if (pasted.texts.size() == elements::kAbsorptionBandCount) pasted.first_band = 0;
  if (pasted.first_band + pasted.texts.size() > elements::kAbsorptionBandCount)
    return Message{{kPastedTooManyRow, " " + std::to_string(pasted.texts.size())}};
  return pasted;
}

}  // namespace velmar::materials
