#include "models/sea/per_hz_spectra.h"

#include <algorithm>

#include "foundation/wide_vectors.h"

namespace velmar::models {
namespace {

constexpr std::array<int, kAbsorptionBandCount> kAbsorptionFrequencies = {
    100, 125, 160, 200, 250, 315, 400, 500, 630, 800, 1000, 1250, 1600, 2000, 2500, 3150, 4000, 5000, 6300};

/// One straight line, from `first_hz` to `last_hz` or the end of the balances.
struct Line {
  double slope = 0.0;
  double intercept = 0.0;
  int first_hz = 0;
  int last_hz = 0;
};

VELMAR_WIDE_VECTORS void Draw(const Line& line, HzSpectrum& per_hz) {
  const int last = std::min(line.last_hz, kLastHz);
#pragma omp simd
  for (int f = line.first_hz; f <= last; ++f) {
    per_hz[f] = line.slope * static_cast<double>(f) + line.intercept;
  }
}

Line Between(double x0, double y0, double x1, double y1) {
  const double slope = (y1 - y0) / (x1 - x0);
  return {.slope = slope,
          .intercept = y0 - x0 * slope,
          .first_hz = static_cast<int>(x0),
          .last_hz = static_cast<int>(x1)};
}

}  // namespace

double AbsorptionBandFrequency(std::size_t band) {
  return static_cast<double>(kAbsorptionFrequencies.at(band));
}

HzSpectrum SeaAbsorptionPerHz(const AbsorptionBands& absorption) {
  constexpr double kCap = 0.99;
  HzSpectrum per_hz{};
  // The first value is not limited here: the fill's attenuation deals with coefficients of 1 and more.
  Draw(Between(0.0, 0.0, AbsorptionBandFrequency(0), absorption[0]), per_hz);
  for (std::size_t band = 1; band < kAbsorptionBandCount; ++band) {
    Draw(Between(AbsorptionBandFrequency(band - 1), std::min(absorption[band - 1], kCap),
                 AbsorptionBandFrequency(band), std::min(absorption[band], kCap)),
         per_hz);
  }
  return per_hz;
}

HzSpectrum SeaSpectrumPerHz(const acoustics::Spectrum& spectrum) {
  HzSpectrum per_hz{};
  Draw(Between(0.0, 0.0, acoustics::BandCentre(0), spectrum[0]), per_hz);
  for (std::size_t band = 1; band < acoustics::kBandCount; ++band) {
    Draw(Between(acoustics::BandCentre(band - 1), spectrum[band - 1], acoustics::BandCentre(band),
                 spectrum[band]),
         per_hz);
  }
  return per_hz;
}

}  // namespace velmar::models
