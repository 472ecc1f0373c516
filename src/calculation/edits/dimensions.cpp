#include "calculation/edits/dimensions.h"

#include "foundation/decimal.h"

namespace velmar::calculation {

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
