#include "calculation/edits/element_numbers.h"

#include "foundation/decimal.h"

namespace velmar::calculation {

void EnterElementNumber(std::string& box, const std::string& text) {
  const bool begun = text == "," || text == "." || text == "-";
  const bool kept = text.empty() || begun || ParseDecimal(text).has_value();
  if (kept) {
    box = text;
  } else {
    box.clear();
  }
}

void EnterComponentArea(std::string& box, const std::string& text) {
  if (text == std::string_view(elements::kSmallElementArea)) {
    box = text;
  } else {
    EnterElementNumber(box, text);
  }
}

std::optional<double> AreaShare(const elements::Setup& setup, int index) {
  const std::optional<double> whole_m2 = ParseDecimal(setup.base.area_text);
  if (!whole_m2 || !(*whole_m2 > 0.0)) return std::nullopt;
  const std::string& text = setup.facade.components.at(static_cast<std::size_t>(index)).area_text;
  if (text == elements::kSmallElementArea) return 0.0;
  const std::optional<double> part_m2 = ParseDecimal(text);
  if (!part_m2 || *part_m2 < 0.0) return std::nullopt;
  return *part_m2 / *whole_m2 * 100.0;
}

bool IsDimension(const std::string& text) { return ParseDecimal(text).value_or(0.0) != 0.0; }

void EnterDimensions(elements::Setup& setup, const std::string& width, const std::string& height) {
  const bool facade = setup.calculation && RowOf(*setup.calculation).Reads(elements::Field::kArea);
  if (facade) {
    setup.base.area_text =
        FormatFixed(ParseDecimal(width).value_or(0.0) * ParseDecimal(height).value_or(0.0), 1);
    return;
  }
  setup.width_text = width;
  setup.height_text = height;
}

}  // namespace velmar::calculation
