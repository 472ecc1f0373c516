#include "models/plates/single_plate_spectrum.h"

#include "models/plates/transmission.h"

namespace velmar::models {

using acoustics::kFineGridPoints;

std::array<double, kFineGridPoints> FineGridBandR(double mass_kg_m2, double bending_n_m,
                                                  std::span<const double, kFineGridPoints> loss_factors) {
  std::array<double, kFineGridPoints> values{};
  for (std::size_t point = 0; point < kFineGridPoints; ++point) {
    values[point] =
        BandR(acoustics::FineGridFrequency(point), Plate{mass_kg_m2, bending_n_m, loss_factors[point]});
  }
  return values;
}

acoustics::Spectrum SinglePlateSpectrum(double mass_kg_m2, double bending_n_m,
                                        std::span<const double, kFineGridPoints> loss_factors) {
  return acoustics::FineGridToBands(FineGridBandR(mass_kg_m2, bending_n_m, loss_factors));
}

}  // namespace velmar::models
