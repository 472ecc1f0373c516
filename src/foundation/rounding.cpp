#include "foundation/rounding.h"

#include <cmath>

namespace velmar {

double RoundToEven(double value) {
  // nearbyint would follow a changed rounding mode; roundeven does not exist in C++20.
  const double below = std::floor(value);
  const double rest = value - below;
  double rounded = below;
  if (rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0)) rounded = below + 1.0;
  return rounded == 0.0 ? 0.0 : rounded;
}

double RoundToEven(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = value * scale;
  if (!std::isfinite(scaled)) return value;
  return RoundToEven(scaled) / scale;
}

bool IsWithin(double value, double lowest, double highest) {
  constexpr double kRounding = 1e-12;
  const auto slack = [](double end) { return std::isfinite(end) ? kRounding * std::abs(end) : 0.0; };
  return value >= lowest - slack(lowest) && value <= highest + slack(highest);
}

}  // namespace velmar
