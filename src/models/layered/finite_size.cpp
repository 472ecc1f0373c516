#include "models/layered/finite_size.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "models/layered/air.h"

namespace velmar::models {

using std::numbers::pi;

SpatialWindow::SpatialWindow(double frequency_hz, const PlateDimensions& dimensions) {
  const double area = dimensions.a_m * dimensions.b_m;
  const double length = area / (dimensions.a_m + dimensions.b_m);  // 2 S/U
  const double k0 = 2.0 * pi * frequency_hz / kLayeredSpeedOfSound;
  edge_ = std::min(1.0, 1.3 * std::sqrt(pi / (2.0 * k0 * length)));
  // The formula of the offset is meant for elements longer than the wave; below, the area alone decides.
  constexpr double kNoLength = 1000.0;
  const double inverse = 2.0 / 3.0 * std::sqrt(2.0 * k0 * length / pi) - 0.124;
  offset_ = inverse > 0.0 ? 1.0 / inverse : kNoLength;
  slope_ = offset_ / edge_ - 1.0;
  const double q = 2.0 * pi / (k0 * k0 * area);
  area_term_ = q * q;
}

double SpatialWindow::Radiation(double cosine) const {
  const double g = cosine >= edge_ ? cosine : offset_ - slope_ * cosine;
  return 1.0 / std::sqrt(g * g + area_term_);
}

}  // namespace velmar::models
