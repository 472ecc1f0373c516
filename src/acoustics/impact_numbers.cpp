#include "acoustics/impact_numbers.h"

#include <cmath>

#include "acoustics/contour_fit.h"
#include "acoustics/impact_rating.h"

namespace velmar::acoustics {
namespace {

constexpr std::size_t k2500Hz = 17;
constexpr double kIicOfZeroContour = 110.0;

/// ASTM E989, relative to 0 dB at 500 Hz, with its sign turned: the contour bounds the levels from above.
constexpr ContourSteps kTurnedContour = {-2, -2, -2, -2, -2, -2, -1, 0, 1, 2, 3, 6, 9, 12, 15, 18};
constexpr AllowedDeficiency kIicAllowed{.sum = 32, .single = 8};

std::optional<double> Term(const BandLevels& impact_level, std::size_t first_band, double lnw) {
  double energy = 0.0;
  for (std::size_t band = first_band; band <= k2500Hz; ++band) {
    const std::optional<double>& level = impact_level[band];
    if (!level || !std::isfinite(*level)) return std::nullopt;
    energy += std::pow(10.0, std::floor(*level * 10.0 + 0.5) / 100.0);
  }
  if (!(energy > 0.0) || !std::isfinite(energy)) return std::nullopt;
  return static_cast<double>(StepsOf(10.0 * std::log10(energy), 1)) - 15.0 - lnw;
}

}  // namespace

ImpactNumbers FindImpactNumbers(const BandLevels& impact_level) {
  ImpactNumbers numbers;
  const std::optional<Spectrum> rated = RatedSpectrum(impact_level);
  if (!rated) return numbers;
  numbers.lnw = ImpactRatingOfShift(FindImpactShift(*rated));
  numbers.ci = Term(impact_level, kFirstRatedBand, *numbers.lnw);
  numbers.ci_50_2500 = Term(impact_level, 0, *numbers.lnw);
  if (auto values = StepsFrom(impact_level, kFirstRatedBand, 1)) {
    for (long& value : *values) value = -value;
    numbers.iic = kIicOfZeroContour + static_cast<double>(HighestShift(kTurnedContour, *values, kIicAllowed));
  }
  return numbers;
}

}  // namespace velmar::acoustics
