#include <limits>

#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "foundation/failure.h"
#include "models/relations/relation.h"

namespace velmar::models {
namespace {

ShiftedSpectrum Rising() {
  ShiftedSpectrum rated;
  for (std::size_t band = 0; band < rated.spectrum.size(); ++band) {
    rated.spectrum[band] = 30.0 + static_cast<double>(band);
  }
  rated.shift = 46;
  return rated;
}

struct Move {
  const char* name;
  double rating_db;
  float relation_db;
  double shift;  ///< from 46
};

class ApplyRelationTest : public testing::TestWithParam<Move> {};

TEST_P(ApplyRelationTest, MovesTheCurveExactlyAndTheShiftRounded) {
  const Move& move = GetParam();
  const ShiftedSpectrum moved = ApplyRelation(Rising(), move.rating_db, move.relation_db);
  EXPECT_EQ(moved.shift, move.shift);
  const double delta = move.rating_db - static_cast<double>(move.relation_db);
  for (std::size_t band = 0; band < 21; ++band) {
    EXPECT_DOUBLE_EQ(moved.spectrum[band], Rising().spectrum[band] - delta);
  }
}

INSTANTIATE_TEST_SUITE_P(Moves, ApplyRelationTest,
                         testing::Values(Move{"HalfBelowTiesToEven", 42, 41.5F, 46},
                                         Move{"OneAndAHalfBelow", 42, 40.5F, 44},
                                         Move{"HalfAbove", 42, 42.5F, 46},
                                         Move{"OneAndAHalfAbove", 42, 43.5F, 48},
                                         Move{"Nothing", 42, 42.0F, 46}, Move{"MuchBetter", 42, 50.2F, 54},
                                         Move{"MuchWorse", 42, 30.7F, 35}),
                         [](const auto& test) { return test.param.name; });

TEST(ApplyRelation, TakesTheDifferenceFromTheSingle) {
  const float relation_db = 43.8164799F;
  const ShiftedSpectrum moved = ApplyRelation(Rising(), 42, relation_db);
  EXPECT_EQ(moved.spectrum[0], 30.0 - (42.0 - static_cast<double>(relation_db)));
}

TEST(ApplyRelation, RefusesARatingThatIsNoNumber) {
  EXPECT_THROW(ApplyRelation(Rising(), std::numeric_limits<double>::quiet_NaN(), 40), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
