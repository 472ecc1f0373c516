#include "models/sea/hz_spectrum.h"

#include <cmath>

namespace velmar::models {

const HzSpectrum& RootsOfHz() {
  static const HzSpectrum kRoots = [] {
    HzSpectrum roots{};
    for (std::size_t f = 0; f <= kHighestHz; ++f) roots[f] = std::sqrt(static_cast<double>(f));
    return roots;
  }();
  return kRoots;
}

}  // namespace velmar::models
