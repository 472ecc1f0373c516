#include "acoustics/airborne_numbers.h"

#include <array>
#include <cmath>
#include <span>

#include "acoustics/airborne_rating.h"
#include "acoustics/contour_fit.h"

namespace velmar::acoustics {
namespace {

constexpr int kTenths = 10;
constexpr std::size_t k80Hz = 2;
constexpr std::size_t k100Hz = kFirstRatedBand;
constexpr std::size_t k125Hz = 4;

/// ISO 717-1, relative to 0 dB at 500 Hz.
constexpr ContourSteps kIsoContour = {-19, -16, -13, -10, -7, -4, -1, 0, 1, 2, 3, 4, 4, 4, 4, 4};
constexpr AllowedDeficiency kIsoAllowed{.sum = 32L * kTenths};

/// ASTM E413, relative to 0 dB at 500 Hz; it begins a band higher.
constexpr ContourSteps kStcContour = {-16, -13, -10, -7, -4, -1, 0, 1, 2, 3, 4, 4, 4, 4, 4, 4};
constexpr AllowedDeficiency kStcAllowed{.sum = 32, .single = 8};

// The A-weighted sources of ISO 717-1, annex B, normalised to 0 dB over the range of their term. Pink noise
// is another spectrum where the range ends at 5000 Hz; traffic is the same in all ranges.
constexpr std::array<double, 19> kPinkTo3150 = {-40, -36, -33, -29, -26, -23, -21, -19, -17, -15,
                                                -13, -12, -11, -10, -9,  -9,  -9,  -9,  -9};
constexpr Spectrum kPinkTo5000 = {-41, -37, -34, -30, -27, -24, -22, -20, -18, -16, -14,
                                  -13, -12, -11, -10, -10, -10, -10, -10, -10, -10};
constexpr Spectrum kTraffic = {-25, -23, -21, -20, -20, -18, -16, -15, -14, -13, -12,
                               -11, -9,  -8,  -9,  -10, -11, -13, -15, -16, -18};

/// ASTM E1332: the outdoor levels in dB from 80 Hz to 4000 Hz and their A-weighted sum.
constexpr std::array<double, 18> kOutdoorLevels = {103, 102, 101, 98, 97, 95, 94, 93, 93,
                                                   91,  90,  89,  89, 88, 88, 87, 85, 84};
constexpr std::array<double, 18> kAWeighting = {-22.5, -19.1, -16.1, -13.4, -10.9, -8.6, -6.6, -4.8, -3.2,
                                                -1.9,  -0.8,  0.0,   0.6,   1.0,   1.2,  1.3,  1.2,  1.0};
constexpr double kOutdoorLevelA = 100.13;

/// A term, its source and where the source begins.
struct Term {
  std::optional<double> AirborneNumbers::*member;
  std::span<const double> source;
  std::size_t first_band;
};

std::span<const Term> EnlargedTerms() {
  static const std::array<Term, 6> kTerms = {{
      {&AirborneNumbers::c_50_3150, kPinkTo3150, 0},
      {&AirborneNumbers::c_50_5000, kPinkTo5000, 0},
      {&AirborneNumbers::c_100_5000, std::span(kPinkTo5000).subspan(k100Hz), k100Hz},
      {&AirborneNumbers::ctr_50_3150, std::span(kTraffic).first(kLastRatedBand + 1), 0},
      {&AirborneNumbers::ctr_50_5000, kTraffic, 0},
      {&AirborneNumbers::ctr_100_5000, std::span(kTraffic).subspan(k100Hz), k100Hz},
  }};
  return kTerms;
}

/// What the element takes from `source`, in dB; nothing when a band is missing or the sum is no level.
std::optional<double> Attenuation(std::span<const double> source, std::size_t first_band,
                                  const BandLevels& reduction_index) {
  double energy = 0.0;
  for (std::size_t i = 0; i < source.size(); ++i) {
    const std::optional<double>& level = reduction_index.at(first_band + i);
    if (!level || !std::isfinite(*level)) return std::nullopt;
    energy += std::pow(10.0, (source[i] - std::floor(*level * kTenths + 0.5) / kTenths) / 10.0);
  }
  if (!(energy > 0.0) || !std::isfinite(energy)) return std::nullopt;
  return -10.0 * std::log10(energy);
}

std::optional<double> OutdoorIndoorClass(const BandLevels& reduction_index) {
  std::array<double, kOutdoorLevels.size()> source{};
  for (std::size_t i = 0; i < source.size(); ++i) {
    source[i] = kOutdoorLevels[i] + kAWeighting[i] - kOutdoorLevelA;
  }
  const std::optional<double> attenuation = Attenuation(source, k80Hz, reduction_index);
  if (!attenuation) return std::nullopt;
  return static_cast<double>(StepsOf(*attenuation, 1));
}

}  // namespace

AirborneNumbers FindAirborneNumbers(const BandLevels& reduction_index, std::optional<double> rw) {
  AirborneNumbers numbers;
  if (const auto values = StepsFrom(reduction_index, k125Hz, 1)) {
    numbers.stc = static_cast<double>(HighestShift(kStcContour, *values, kStcAllowed));
  }
  numbers.oitc = OutdoorIndoorClass(reduction_index);
  const std::optional<Spectrum> rated = RatedSpectrum(reduction_index);
  if (!rated) return numbers;
  const double shift = FindShift(*rated);
  numbers.rw = rw.value_or(RatingOfShift(shift));
  const AdaptationTerms terms = FindAdaptationTerms(*rated, *numbers.rw);
  numbers.c = terms.c;
  numbers.ctr = terms.ctr;
  if (const auto values = StepsFrom(reduction_index, kFirstRatedBand, kTenths)) {
    const long tenths = HighestShift(InSteps(kIsoContour, kTenths), *values, kIsoAllowed);
    numbers.rw_tenths = static_cast<double>(tenths) / kTenths;
  }
  for (const Term& term : EnlargedTerms()) {
    if (const auto attenuation = Attenuation(term.source, term.first_band, reduction_index)) {
      numbers.*term.member = static_cast<double>(StepsOf(*attenuation, 1)) - *numbers.rw;
    }
  }
  return numbers;
}

}  // namespace velmar::acoustics
