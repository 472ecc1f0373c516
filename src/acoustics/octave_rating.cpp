#include "acoustics/octave_rating.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "acoustics/logarithm.h"
#include "foundation/failure.h"

namespace velmar::acoustics {
namespace {

constexpr std::size_t kThirdsInOctave = 3;
constexpr std::size_t kFirstRatedOctave = 1;  // 125 Hz
constexpr std::array<double, 5> kOctaveReference = {36, 45, 52, 55, 56};
constexpr double kReferenceAt500Hz = 52.0;
constexpr double kAllowedOctaveDeviation = 10.0;
// Deviations are sums of values with one decimal: what is equal on paper must stay equal here.
constexpr double kEqual = 1e-9;
constexpr double kLargestLevel = 1e6;

double UnfavourableDeviation(const OctaveSpectrum& reduction_index, double shift) {
  double sum = 0.0;
  for (std::size_t i = 0; i < kOctaveReference.size(); ++i) {
    sum += std::max(0.0, kOctaveReference[i] + shift - reduction_index[i + kFirstRatedOctave]);
  }
  return sum;
}

/// The reference spectra of ISO 717-1 in octave bands, 125 Hz to 2000 Hz.
constexpr std::array<double, 5> kPinkNoise = {-21, -14, -8, -5, -4};
constexpr std::array<double, 5> kRoadTraffic = {-14, -10, -7, -4, -6};

double Term(const OctaveSpectrum& reduction_index, const std::array<double, 5>& spectrum, double rw) {
  double energy = 0.0;
  for (std::size_t i = 0; i < spectrum.size(); ++i) {
    energy += std::pow(10.0, (spectrum.at(i) - reduction_index.at(i + kFirstRatedOctave)) / 10.0);
  }
  return RequireFinite(std::floor(-10.0 * Log10(energy) + 0.5) - rw, "an adaptation term of octave bands");
}

}  // namespace

OctaveSpectrum OctavesOf(const Spectrum& reduction_index) {
  OctaveSpectrum octaves{};
  for (std::size_t i = 0; i < kOctaveCount; ++i) {
    double energy = 0.0;
    for (std::size_t third = 0; third < kThirdsInOctave; ++third) {
      energy += std::pow(10.0, -reduction_index[kThirdsInOctave * i + third] / 10.0);
    }
    octaves[i] = -10.0 * Log10(energy / static_cast<double>(kThirdsInOctave));
  }
  return octaves;
}

double RateOctaves(const OctaveSpectrum& reduction_index) {
  double highest = -kLargestLevel;
  for (std::size_t i = 0; i < kOctaveReference.size(); ++i) {
    const double level = reduction_index[i + kFirstRatedOctave];
    if (!(std::abs(level) < kLargestLevel)) {
      throw ArithmeticFailure("octave band " + std::to_string(i) + " holds no level that can be rated");
    }
    highest = std::max(highest, level - kOctaveReference[i]);
  }
  // With this shift no band but the best could carry the allowed deviation any further.
  double shift = std::ceil(highest + kAllowedOctaveDeviation);
  while (UnfavourableDeviation(reduction_index, shift) > kAllowedOctaveDeviation + kEqual) shift -= 1.0;
  return kReferenceAt500Hz + shift;
}

AdaptationTerms FindOctaveTerms(const OctaveSpectrum& reduction_index, double rw) {
  return {Term(reduction_index, kPinkNoise, rw), Term(reduction_index, kRoadTraffic, rw)};
}

}  // namespace velmar::acoustics
