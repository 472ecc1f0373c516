#include "storage/library/rating_check.h"

#include <cmath>

#include <gtest/gtest.h>

#include "storage/library/library_store.h"

namespace velmar::storage {
namespace {

/// A test with the same value in every one-third octave.
MeasuredTest Constant(double level) {
  MeasuredTest test;
  test.bands.fill(level);
  return test;
}

LibraryFolder Folder(const char* key) { return *FindLibraryFolder(key); }

TEST(CheckRating, RatesThirdsByTheQuantityOfTheFolder) {
  // ISO 717-1: R = 40 dB everywhere. At 40 dB the deviations are 1 + 2 + 3 + 5 x 4 = 26 dB, at 41 dB they
  // are 35.
  MeasuredTest wall = Constant(40.0);
  const RatingCheck airborne = CheckRating(Folder("Rw"), wall);
  EXPECT_EQ(airborne.basis, RatingBasis::kThirds);
  EXPECT_EQ(airborne.rating, 40.0);
  // ISO 717-2: Ln = 60 dB everywhere: 3 + 6 + 9 + 12 = 30 dB at 66 dB, 35 dB at 65 dB.
  const RatingCheck impact = CheckRating(Folder("Lnw"), Constant(60.0));
  EXPECT_EQ(impact.rating, 66.0);
  EXPECT_EQ(impact.other_adaptation, std::nullopt);
  // A covering that improves nothing, and one that improves 10 dB in every band.
  EXPECT_EQ(CheckRating(Folder("DLw"), Constant(0.0)).rating, 0.0);
  EXPECT_EQ(CheckRating(Folder("DLw"), Constant(10.0)).rating, 10.0);
  EXPECT_EQ(CheckRating(Folder("DRw"), wall).basis, RatingBasis::kNone);
}

TEST(CheckRating, SaysWhenTheStatedRatingIsAnother) {
  MeasuredTest wall = Constant(40.0);
  EXPECT_FALSE(CheckRating(Folder("Rw"), wall).differs) << "nothing is stated";
  wall.rating = 40.0;
  EXPECT_FALSE(CheckRating(Folder("Rw"), wall).differs);
  wall.rating = 44.0;
  EXPECT_TRUE(CheckRating(Folder("Rw"), wall).differs);
  wall.bands[5].reset();
  EXPECT_EQ(CheckRating(Folder("Rw"), wall).basis, RatingBasis::kNone) << "a rated band lacks";
  EXPECT_FALSE(CheckRating(Folder("Rw"), wall).differs);
}

TEST(CheckRating, TakesOctavesWhereThirdsLack) {
  MeasuredTest glass;
  glass.octaves = {std::nullopt, 20.0, 22.0, 28.0, 34.0, 29.0, std::nullopt, std::nullopt};
  const RatingCheck check = CheckRating(Folder("Infissi"), glass);
  EXPECT_EQ(check.basis, RatingBasis::kOctaves);
  EXPECT_EQ(check.rating, 30.0);
  EXPECT_EQ(check.adaptation, -1.0);
  EXPECT_EQ(check.other_adaptation, -3.0);
  EXPECT_EQ(CheckRating(Folder("Lnw"), glass).basis, RatingBasis::kNone);
  glass.bands.fill(40.0);
  EXPECT_EQ(CheckRating(Folder("Infissi"), glass).basis, RatingBasis::kThirds);
}

TEST(CheckRating, BandsBeyondAnySoundLevelAreNoBasis) {
  EXPECT_EQ(CheckRating(Folder("Rw"), Constant(1e9)).basis, RatingBasis::kNone);
  EXPECT_EQ(CheckRating(Folder("Rw"), Constant(NAN)).basis, RatingBasis::kNone);
}

TEST(UsesOf, AsksForTheRatedBandsAlone) {
  MeasuredTest window = Constant(30.0);
  EXPECT_TRUE(UsesOf(window).facade_by_bands);
  EXPECT_FALSE(UsesOf(window).facade_by_rating);
  window.bands[0].reset();
  window.bands[20].reset();
  EXPECT_TRUE(UsesOf(window).facade_by_bands);
  window.bands[3].reset();
  EXPECT_FALSE(UsesOf(window).facade_by_bands);
  window.rating = 33.0;
  EXPECT_TRUE(UsesOf(window).facade_by_rating);
}

}  // namespace
}  // namespace velmar::storage
