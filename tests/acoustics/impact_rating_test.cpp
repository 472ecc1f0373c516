#include "acoustics/impact_rating.h"

#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::acoustics {
namespace {

Spectrum Rated(const std::array<double, kRatedBandCount>& values) {
  Spectrum spectrum{};
  for (std::size_t j = 0; j < values.size(); ++j) spectrum[j + kFirstRatedBand] = values[j];
  return spectrum;
}

TEST(FindImpactShift, OfACurveParallelToTheReferenceStopsBelow32) {
  auto values = kImpactReference;
  for (double& value : values) value += 60;
  // 16 bands two decibels above the curve sum to exactly 32, which goes on; one decibel above gives 16.
  EXPECT_EQ(FindImpactShift(Rated(values)), 59);
  EXPECT_EQ(ImpactRatingOfShift(59), 57);
}

TEST(ImpactRating, OfAHeavyFloorWorkedOutByHand) {
  const Spectrum floor =
      Rated({62.1, 63.4, 63.5, 66.7, 66.6, 68.8, 69.6, 70.7, 70.9, 71.2, 72.8, 73.9, 74.1, 73.4, 73.4, 72.9});
  // X = 81: 0.9 + 4.1 + 6.4 + 9.4 + 11.9 = 32.7 at 1250 Hz to 3150 Hz goes on; X = 82: 3.1 + 5.4 + 8.4 + 10.9
  // = 27.8.
  EXPECT_EQ(FindImpactShift(floor), 82);
  EXPECT_EQ(ImpactRatingOfShift(82), 80);
  // The levels sum to 82.9 dB: 82.9 - 15 - 80 = -12.1.
  EXPECT_EQ(FindImpactAdaptationTerm(floor, 80), -12);
}

TEST(FindImpactShift, RefusesWhatIsNoLevel) {
  Spectrum spectrum{};
  spectrum[9] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW(FindImpactShift(spectrum), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::acoustics
