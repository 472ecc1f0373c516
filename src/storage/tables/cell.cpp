#include "storage/tables/cell.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <utility>

#include "foundation/decimal.h"

namespace velmar::storage {
namespace {

std::optional<bool> ParseYesNo(std::string_view text) {
  constexpr std::array<std::pair<std::string_view, bool>, 10> kWords{{{"1", true},
                                                                      {"0", false},
                                                                      {"vero", true},
                                                                      {"falso", false},
                                                                      {"true", true},
                                                                      {"false", false},
                                                                      {"s\u00EC", true},
                                                                      {"s\u00CC", true},
                                                                      {"si", true},
                                                                      {"no", false}}};
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) {
    return c < 0x80 ? static_cast<char>(std::tolower(c)) : static_cast<char>(c);
  });
  for (const auto& [word, value] : kWords) {
    if (lower == word) return value;
  }
  return std::nullopt;
}

}  // namespace

std::optional<Cell> ParseCell(ColumnType type, std::string_view text) {
  if (text.empty()) return Cell{};
  switch (type) {
    case ColumnType::kText:
      return Cell{std::string(text)};
    case ColumnType::kNumber:
      if (const auto number = ParseDecimal(text)) return Cell{*number};
      return std::nullopt;
    case ColumnType::kWhole:
      if (const auto number = ParseDecimal(text); number && *number == std::trunc(*number))
        return Cell{*number};
      return std::nullopt;
    case ColumnType::kYesNo:
      if (const auto yes = ParseYesNo(text)) return Cell{*yes};
      return std::nullopt;
  }
  return std::nullopt;
}

std::string FormatCell(const Cell& cell) {
  if (const auto* number = std::get_if<double>(&cell)) {
    std::string text = FormatShortest(*number);
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
  }
  if (const auto* yes = std::get_if<bool>(&cell)) return *yes ? "1" : "0";
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  return {};
}

}  // namespace velmar::storage
