#include "acoustics/contour_fit.h"

#include <algorithm>
#include <cmath>

namespace velmar::acoustics {
namespace {

// Far beyond any level in dB; up to here tenths are exact whole numbers.
constexpr double kLargestLevel = 1e6;

bool Within(const ContourSteps& contour, const ContourSteps& values, long shift,
            const AllowedDeficiency& allowed) {
  long sum = 0;
  long largest = 0;
  for (std::size_t j = 0; j < kContourBandCount; ++j) {
    const long deficiency = std::max(0L, contour[j] + shift - values[j]);
    sum += deficiency;
    largest = std::max(largest, deficiency);
  }
  return sum <= allowed.sum && largest <= allowed.single.value_or(allowed.sum);
}

}  // namespace

long StepsOf(double level_db, int steps_per_db) {
  return static_cast<long>(std::floor(level_db * steps_per_db + 0.5));
}

std::optional<ContourSteps> StepsFrom(const BandLevels& levels, std::size_t first_band, int steps_per_db) {
  ContourSteps steps{};
  for (std::size_t j = 0; j < kContourBandCount; ++j) {
    const std::optional<double>& level = levels.at(first_band + j);
    if (!level || !(std::abs(*level) < kLargestLevel)) return std::nullopt;
    steps[j] = StepsOf(*level, steps_per_db);
  }
  return steps;
}

ContourSteps InSteps(const ContourSteps& contour_db, int steps_per_db) {
  ContourSteps steps = contour_db;
  for (long& value : steps) value *= steps_per_db;
  return steps;
}

long HighestShift(const ContourSteps& contour, const ContourSteps& values, const AllowedDeficiency& allowed) {
  long shift = values[0] - contour[0];
  for (std::size_t j = 1; j < kContourBandCount; ++j) shift = std::min(shift, values[j] - contour[j]);
  while (Within(contour, values, shift + 1, allowed)) ++shift;
  return shift;
}

}  // namespace velmar::acoustics
