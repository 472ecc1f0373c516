#include "elements/setup.h"

#include <algorithm>

#include "foundation/decimal.h"
#include "foundation/rounding.h"

namespace velmar::elements {

int CountOf(const std::string& text, int lowest, int highest) {
  const std::optional<double> value = ParseDecimal(text);
  if (!value) return lowest;
  return static_cast<int>(
      std::clamp(RoundToEven(*value), static_cast<double>(lowest), static_cast<double>(highest)));
}

int Facade::Count() const { return CountOf(count_text, 1, kCapacity); }

}  // namespace velmar::elements
