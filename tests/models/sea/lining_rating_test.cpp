#include "models/sea/lining_rating.h"

#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "foundation/failure.h"
#include "tests/models/sea/constructions.h"

namespace velmar::models {
namespace {

acoustics::Spectrum Rising() {
  acoustics::Spectrum spectrum{};
  for (std::size_t i = 0; i < spectrum.size(); ++i) spectrum[i] = 40.0 + 1.5 * static_cast<double>(i);
  return spectrum;
}

struct BaseRating {
  float base_rw_db = 0.0F;
  double improvement = 0.0;  ///< beyond that over a base of 50 dB
};
class LiningRatings : public testing::TestWithParam<BaseRating> {};

TEST_P(LiningRatings, SplitTheTotalIntoBaseAndImprovement) {
  const double total = acoustics::RatingOfShift(acoustics::FindShift(Rising()));
  const LiningRating rating = RateLining(Rising(), GetParam().base_rw_db);
  EXPECT_EQ(rating.rw, total);
  EXPECT_EQ(rating.delta_rw, total - 50.0 + GetParam().improvement);
  EXPECT_EQ(rating.shift, total + 4.0);
  // The adaptation terms stand against what is left without the improvement.
  const auto terms = acoustics::FindAdaptationTerms(Rising(), total - rating.delta_rw);
  EXPECT_EQ(rating.c, terms.c);
  EXPECT_EQ(rating.ctr, terms.ctr);
  EXPECT_EQ(rating.c, acoustics::FindAdaptationTerms(Rising(), total).c + rating.delta_rw);
}
// Ties go to the even improvement.
INSTANTIATE_TEST_SUITE_P(Bases, LiningRatings,
                         testing::Values(BaseRating{50.0F, 0.0}, BaseRating{50.4F, 0.0},
                                         BaseRating{49.6F, 0.0}, BaseRating{52.0F, -2.0},
                                         BaseRating{80.0F, -30.0}));

TEST(RateLining, RoundsATieToTheEvenImprovement) {
  const double total = acoustics::RatingOfShift(acoustics::FindShift(Rising()));
  for (const double half : {10.5, 11.5}) {
    const LiningRating rating = RateLining(Rising(), static_cast<float>(total - half));
    EXPECT_EQ(rating.delta_rw, half == 10.5 ? 10.0 : 12.0);
    EXPECT_EQ(rating.rw, total);
  }
}

TEST(GenericLining, ImprovesByItsResonance) {
  // f0 = 160 sqrt((1 / 11 + 1 / 230) * 0.111 / 0.05) = 73.577 Hz; 72 - (20 lg f0 + 25) = 9.665 dB.
  EXPECT_NEAR(GenericLiningImprovement(11.0F, 230.0F, 0.05F, 50.0F), 9.66510538838461, 1e-5);
}

TEST(GenericLining, FormsItsResonanceInSinglePrecision) {
  const float f0 = 160.0F * std::sqrt((1.0F / 11.0F + 1.0F / 230.0F) * (0.111F / 0.05F));
  EXPECT_NEAR(GenericLiningImprovement(11.0F, 230.0F, 0.05F, 50.0F),
              72.0 - (20.0 * std::log10(static_cast<double>(f0)) + 25.0), 1e-12);
}

LiningInput Generic() {
  return {.variant = LiningVariant::kGenericCeiling,
          .base_rw_db = 50.0F,
          .base_mass_kg_m2 = 230.0F,
          .layers = {Plasterboard(), {}, {}},
          .cavity = {.type = SeaCavityType::kFibre, .depth_mm = 50, .fills = {MineralWool(), {}, {}}}};
}

TEST(GenericLining, IsRatedWithoutASpectrum) {
  const LiningRating rating = RateGenericLining(Generic());
  EXPECT_EQ(rating.delta_rw, 10.0);
  EXPECT_EQ(rating.rw, 60.0);
  EXPECT_EQ(rating.shift, 0.0);
  EXPECT_EQ(rating.c, 0.0);
  EXPECT_EQ(rating.ctr, 0.0);
}

TEST(GenericLining, RoundsTheTotalOfAFractionalBase) {
  LiningInput input = Generic();
  input.base_rw_db = 50.5F;  // improvement 9.415 -> 9, total 59.5 -> 60
  EXPECT_EQ(RateGenericLining(input).delta_rw, 9.0);
  EXPECT_EQ(RateGenericLining(input).rw, 60.0);
}

TEST(GenericLining, FailsWithoutACavity) {
  LiningInput input = Generic();
  input.cavity.depth_mm = 0.0;
  EXPECT_THROW(RateGenericLining(input), ArithmeticFailure);
  EXPECT_THROW(GenericLiningImprovement(0.0F, 230.0F, 0.05F, 50.0F), ArithmeticFailure);
}

TEST(GenericLining, IsNotRatedPastItsChecksOrForAnotherVariant) {
  LiningInput input = Generic();
  input.base_rw_db.reset();
  EXPECT_THROW(RateGenericLining(input), std::invalid_argument);
  input = Generic();
  input.variant = LiningVariant::kCeiling;
  EXPECT_THROW(RateGenericLining(input), std::invalid_argument);
}

}  // namespace
}  // namespace velmar::models
