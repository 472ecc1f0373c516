#include "models/sea/wall_assembly.h"

namespace velmar::models {

void AddExtraPower(const SeaCavityPower& cavity, HzSpectrum& side_power) {
  if (!cavity.has_extra) return;
  for (std::size_t f = 1; f <= kHighestHz; ++f) side_power[f] += cavity.extra[f];
}

HzSpectrum TotalPower(const HzSpectrum& first_side, const HzSpectrum& second_side,
                      const SeaCavityPower& cavity, const SeaMassPair& masses) {
  HzSpectrum total{};
  const std::size_t mass_law_end = LastMassLawHz(masses);
  for (std::size_t f = 1; f <= mass_law_end; ++f) {
    const double product = masses.Total() * static_cast<double>(f);
    total[f] = product * product * kMassLawFactor;
  }
  for (std::size_t f = mass_law_end + 1; f <= kHighestHz; ++f) {
    total[f] = first_side[f] * second_side[f] * cavity.cavity[f];
  }
  return total;
}

}  // namespace velmar::models
