#include "acoustics/fine_grid.h"

#include <stdexcept>

namespace velmar::acoustics {

Spectrum AverageIntoBands(std::span<const double> fine_values, double first_frequency_hz) {
  Spectrum bands{};
  double frequency_hz = first_frequency_hz;
  std::size_t point = 0;
  for (std::size_t band = 0; band < kBandCount; ++band) {
    double mean = 0.0;
    for (double count = 0.0; frequency_hz < BandUpperEdge(band); count += 1.0) {
      if (point == fine_values.size()) throw std::invalid_argument("the grid ends before the last band");
      mean = (count * mean + fine_values[point]) / (count + 1.0);
      ++point;
      frequency_hz += kFineGridStep;
    }
    bands[band] = mean;
  }
  return bands;
}

Spectrum FineGridToBands(std::span<const double, kFineGridPoints> fine_values) {
  return AverageIntoBands(fine_values, kFineGridStart);
}

}  // namespace velmar::acoustics
