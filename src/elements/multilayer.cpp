#include "elements/multilayer.h"

#include <numbers>

namespace velmar::elements {

double DevelopedRatio(double profile_height_mm, double profile_pitch_mm) {
  if (!(profile_pitch_mm > 0.0)) return 1.0;
  const double slope = std::numbers::pi * profile_height_mm / (2.0 * profile_pitch_mm);
  return 1.0 + slope * slope;
}

}  // namespace velmar::elements
