#include "acoustics/impact_numbers.h"

#include <cmath>

#include "acoustics/contour_fit.h"
#include "acoustics/impact_rating.h"

namespace velmar::acoustics {
namespace {

constexpr std::size_t k2500Hz = 17;
constexpr double kIicOfZeroContour = 110.0;
constexpr int kTenths = 10;

/// ISO 717-2 and ASTM E989, relative to 0 dB at 500 Hz, with its sign turned: the contour bounds the levels
/// from above.
constexpr ContourSteps kTurnedContour = {-2, -2, -2, -2, -2, -2, -1, 0, 1, 2, 3, 6, 9, 12, 15, 18};
constexpr AllowedDeficiency kIicAllowed{.sum = 32, .single = 8};
constexpr AllowedDeficiency kIsoAllowed{.sum = 32L * kTenths};

/// The bare reference floor of ISO 717-2, table 4, in tenths of a decibel from 100 Hz on, and its rating.
constexpr ContourSteps kReferenceFloor = {670, 675, 680, 685, 690, 695, 700, 705,
                                          710, 715, 720, 720, 720, 720, 720, 720};
constexpr double kReferenceFloorRating = 78.0;

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

std::optional<double> WeightedImpactImprovement(const BandLevels& improvement) {
  auto values = StepsFrom(improvement, kFirstRatedBand, kTenths);
  if (!values) return std::nullopt;
  for (std::size_t j = 0; j < kContourBandCount; ++j) (*values)[j] -= kReferenceFloor[j];
  const long shift = HighestShift(InSteps(kTurnedContour, kTenths), *values, kIsoAllowed);
  return kReferenceFloorRating + std::floor(static_cast<double>(shift) / kTenths);
}

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
