#include "acoustics/unfavourable_deviations.h"

namespace velmar::acoustics {

Deviations UnfavourableDeviations(const Spectrum& levels,
                                  const std::array<double, kRatedBandCount>& reference, double shift,
                                  Unfavourable side) {
  Deviations deviations{};
  for (std::size_t j = 0; j < kRatedBandCount; ++j) {
    const double below = reference[j] + shift - levels[j + kFirstRatedBand];
    const double deviation = side == Unfavourable::kBelow ? below : -below;
    if (deviation > 0.0) deviations[j] = deviation;
  }
  return deviations;
}

double SumOf(const Deviations& deviations) {
  double sum = 0.0;
  for (const double deviation : deviations) sum += deviation;
  return sum;
}

}  // namespace velmar::acoustics
