#include "models/sea/band_average.h"

#include <algorithm>
#include <cmath>

#include "acoustics/constants.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::models {
namespace {

constexpr std::size_t kFirstAveragedHz = 44;
constexpr double kLastBandEdge = 5600.0;

double EdgeOfBand(std::size_t band) {
  return band + 1 == acoustics::kBandCount ? kLastBandEdge : acoustics::BandUpperEdge(band);
}

/// The first frequency at or above the edge of a band: where the next band begins.
std::size_t EndOfBand(std::size_t band) { return static_cast<std::size_t>(std::ceil(EdgeOfBand(band))); }

double MassLaw(double mass_kg_m2, std::size_t hz) {
  return 20.0 * acoustics::Log10(mass_kg_m2 * static_cast<double>(hz)) - 48.0;
}

constexpr std::size_t kGroup = 4;

/// Whether the product of the kGroup ratios from `first` on is far from the ends of the number range.
bool IsModerate(const HzSpectrum& power_ratio, std::size_t first) {
  constexpr double kModerate = 1e37;
  bool is_moderate = true;
  for (std::size_t i = first; i < first + kGroup; ++i)
    is_moderate &= power_ratio[i] < kModerate && power_ratio[i] > 1.0 / kModerate;
  return is_moderate;
}

/// Natural logarithm of the product of `power_ratio` from `first` to before `end`.
double LogOfProduct(const HzSpectrum& power_ratio, std::size_t first, std::size_t end) {
  constexpr double kLarge = 1e150;
  double sum = 0.0;
  double product = 1.0;
  const auto take = [&sum, &product](double factor) {
    product *= factor;
    if (product > kLarge || product < 1.0 / kLarge) {
      sum += std::log(product);
      product = 1.0;
    }
  };
  std::size_t f = first;
  while (f < end) {
    if (f + kGroup <= end && IsModerate(power_ratio, f)) {
      take((power_ratio[f] * power_ratio[f + 1]) * (power_ratio[f + 2] * power_ratio[f + 3]));
      f += kGroup;
      continue;
    }
    const double ratio = power_ratio[f++];
    if (!(ratio > 0.0) || !std::isfinite(ratio)) throw ArithmeticFailure("a level has no logarithm");
    if (ratio > kLarge || ratio < 1.0 / kLarge) {
      sum += std::log(ratio);
    } else {
      take(ratio);
    }
  }
  return sum + std::log(product);
}

}  // namespace

std::size_t LastMassLawHz(const SeaMassPair& pair) {
  if (!pair.IsDouble()) return 0;
  const double resonance_hz =
      1.0 / acoustics::kTwoPi *
      std::sqrt(acoustics::kSpeedOfSound * acoustics::kSpeedOfSound * acoustics::kAirDensity * pair.Total() /
                (pair.first_kg_m2 * pair.second_kg_m2 * pair.distance_m));
  if (!std::isfinite(resonance_hz))
    throw ArithmeticFailure(kZeroCavityDepthRow, "no depth between two masses");
  return static_cast<std::size_t>(RoundToEven(std::min(resonance_hz, static_cast<double>(kHighestHz))));
}

acoustics::Spectrum MeanOfBands(const HzSpectrum& level_db) {
  acoustics::Spectrum bands{};
  std::size_t f = kFirstAveragedHz;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const std::size_t first = f;
    double sum = 0.0;
    for (; f < EndOfBand(band); ++f) sum += level_db[f];
    bands[band] = RequireFinite(sum / static_cast<double>(f - first), "band level");
  }
  return bands;
}

acoustics::Spectrum MeanLevelOfBands(const HzSpectrum& power_ratio) {
  static const double kLn10 = std::log(10.0);
  acoustics::Spectrum bands{};
  std::size_t first = kFirstAveragedHz;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const std::size_t end = EndOfBand(band);
    bands[band] = 10.0 * LogOfProduct(power_ratio, first, end) / kLn10 / static_cast<double>(end - first);
    first = end;
  }
  return bands;
}

acoustics::Spectrum SeaBandAverage(const SeaBandAverageInput& input) {
  const bool first_is_heavier = input.masses.first_kg_m2 >= input.masses.second_kg_m2;
  const std::size_t mass_law_end = LastMassLawHz(input.masses);
  HzSpectrum total_db{};
  for (std::size_t f = 1; f <= kHighestHz; ++f) {
    if (f <= mass_law_end) {
      total_db[f] = MassLaw(input.masses.Total(), f);
      continue;
    }
    double heavier = first_is_heavier ? input.first_db[f] : input.second_db[f];
    const double lighter = first_is_heavier ? input.second_db[f] : input.first_db[f];
    if (input.extra_power[f] != 0.0) {
      heavier = 10.0 * acoustics::Log10(std::pow(10.0, heavier / 10.0) + input.extra_power[f]);
    }
    total_db[f] = heavier + lighter + input.cavity_db[f];
  }
  return MeanOfBands(total_db);
}

}  // namespace velmar::models
