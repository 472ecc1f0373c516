#include "acoustics/unfavourable_deviations.h"

#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "acoustics/impact_rating.h"

namespace velmar::acoustics {
namespace {

Spectrum Flat(double level) {
  Spectrum spectrum{};
  spectrum.fill(level);
  return spectrum;
}

// A wall of 40 dB in every band under the curve of Rw 44 (shift 48): only the top of the curve stands above
// it.
TEST(UnfavourableDeviations, LieBelowTheCurveOfAirborneSound) {
  const Deviations deviations =
      UnfavourableDeviations(Flat(40.0), kAirborneReference, 48.0 - 4.0, Unfavourable::kBelow);
  EXPECT_EQ(deviations, (Deviations{0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 4, 4, 4, 4, 4}));
  EXPECT_EQ(SumOf(deviations), 26.0);
}

TEST(UnfavourableDeviations, LieAboveTheCurveOfImpactSound) {
  const Deviations deviations =
      UnfavourableDeviations(Flat(50.0), kImpactReference, 58.0, Unfavourable::kAbove);
  EXPECT_EQ(deviations, (Deviations{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 6, 9, 12}));
}

TEST(UnfavourableDeviations, OfOneSideAreNoneOfTheOther) {
  const Deviations below = UnfavourableDeviations(Flat(40.0), kAirborneReference, 44.0, Unfavourable::kBelow);
  const Deviations above = UnfavourableDeviations(Flat(40.0), kAirborneReference, 44.0, Unfavourable::kAbove);
  for (std::size_t j = 0; j < below.size(); ++j) EXPECT_EQ(below[j] * above[j], 0.0) << j;
  EXPECT_EQ(SumOf(above), 19.0 + 16 + 13 + 10 + 7 + 4 + 1);
}

// The law of the rating: below 32,0 dB where it stands, not a decibel further.
TEST(UnfavourableDeviations, StayBelowTheirLimitAtTheRating) {
  Spectrum wall{};
  for (std::size_t band = 0; band < wall.size(); ++band) wall[band] = 30.3 + 1.37 * static_cast<double>(band);
  const double shift = FindShift(wall);
  EXPECT_LT(SumOf(UnfavourableDeviations(wall, kAirborneReference, shift, Unfavourable::kBelow)),
            kAllowedDeviationDb);
  EXPECT_GE(SumOf(UnfavourableDeviations(wall, kAirborneReference, shift + 1.0, Unfavourable::kBelow)),
            kAllowedDeviationDb);
}

}  // namespace
}  // namespace velmar::acoustics
