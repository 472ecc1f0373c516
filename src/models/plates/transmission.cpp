#include "models/plates/transmission.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "acoustics/constants.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "models/plates/diffuse_field.h"

namespace velmar::models {
namespace {

constexpr std::size_t kBandSteps = 20;
constexpr std::size_t kBandPoints = kBandSteps + 1;
/// With the last one repeated until the lanes of the integration are full.
constexpr std::size_t kFilledPoints = (kBandPoints + kFrequencyLanes - 1) / kFrequencyLanes * kFrequencyLanes;

/// The frequencies of a band relative to its centre: from a sixth of an octave below to a sixth above.
std::array<double, kFilledPoints> BandRatios() {
  std::array<double, kFilledPoints> ratios{};
  const double lowest = 1.0 / std::pow(2.0, 1.0 / 6.0);
  const double width = std::pow(2.0, 1.0 / 3.0) - 1.0;
  for (std::size_t j = 0; j < kFilledPoints; ++j) {
    const auto step = static_cast<double>(std::min(j, kBandSteps));
    ratios[j] = lowest * (1.0 + width * step / static_cast<double>(kBandSteps));
  }
  return ratios;
}

double ReductionIndex(double tau) {
  return RequireFinite(-10.0 * acoustics::Log10(tau), "a reduction index");
}

/// The mean in decibels by the trapezoidal rule. The logarithm of the product stands for the sum of the
/// logarithms as long as the product keeps its full precision.
double BandMean(const std::array<double, kFilledPoints>& taus) {
  // Two products side by side: each waits only for its own.
  double odd = std::sqrt(taus[0] * taus[kBandSteps]) * taus[1];
  double even = 1.0;
  for (std::size_t j = 2; j < kBandSteps; j += 2) {
    even *= taus[j];
    odd *= taus[j + 1];
  }
  const auto is_precise = [](double product) { return product > 1e-125 && product < 1e125; };
  if (is_precise(even) && is_precise(odd)) return ReductionIndex(even * odd) / kBandSteps;

  double sum = 0.5 * (ReductionIndex(taus[0]) + ReductionIndex(taus[kBandSteps]));
  for (std::size_t j = 1; j < kBandSteps; ++j) sum += ReductionIndex(taus[j]);
  return sum / kBandSteps;
}

}  // namespace

double TauAngle(double frequency_hz, double theta, std::span<const Plate> plates, const Cavity& cavity) {
  if (plates.empty() || plates.size() > kMostPlates) return 0.0;
  const double air = AirImpedance(theta);
  double real = 2.0 * air;
  double imag = 0.0;
  for (const Plate& plate : plates) {
    real += PlateReal(frequency_hz, theta, plate);
    imag += PlateImag(frequency_hz, theta, plate);
  }
  if (plates.size() > 1) {
    real += air + CavityReal(frequency_hz, theta, cavity);
    imag += CavityImag(frequency_hz, theta, cavity);
  }
  return (2.0 * air) * (2.0 * air) / (real * real + imag * imag);
}

double Tau(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity) {
  double tau = 0.0;
  DiffuseTau({&frequency_hz, 1}, plates, cavity, {&tau, 1});
  return tau;
}

double PointR(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity) {
  return ReductionIndex(Tau(frequency_hz, plates, cavity));
}

double BandR(double frequency_hz, std::span<const Plate> plates, const Cavity& cavity) {
  static const std::array<double, kFilledPoints> kRatios = BandRatios();
  std::array<double, kFilledPoints> frequencies{};
  std::array<double, kFilledPoints> taus{};
  for (std::size_t j = 0; j < kFilledPoints; ++j) frequencies[j] = frequency_hz * kRatios[j];
  DiffuseTau(frequencies, plates, cavity, taus);
  return BandMean(taus);
}

double BandR(double frequency_hz, const Plate& plate) { return BandR(frequency_hz, {&plate, 1}, Cavity{}); }

}  // namespace velmar::models
