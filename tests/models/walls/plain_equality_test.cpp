#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "tests/models/walls/plain_walls.h"
#include "tests/models/walls/random_walls.h"

namespace velmar::models {
namespace {

using acoustics::Spectrum;

void ExpectEqual(const Spectrum& found, const Spectrum& plain, int set_up) {
  for (std::size_t band = 0; band < plain.size(); ++band) {
    ASSERT_NEAR(found[band], plain[band], 1e-9) << "set-up " << set_up << ", band " << band;
  }
}

TEST(WallsPlainEquality, OfSingleWalls) {
  WallDice dice(1, false);
  for (int n = 0; n < 25; ++n) {
    const SingleWallInput wall = dice.RollSingle();
    ASSERT_NO_FATAL_FAILURE(ExpectEqual(CalculateSingleWall(wall).spectrum, PlainSingleWall(wall), n));
  }
}

TEST(WallsPlainEquality, OfDoubleWalls) {
  WallDice dice(2, false);
  for (int n = 0; n < 150; ++n) {
    const DoubleWallInput wall = dice.RollDouble();
    ASSERT_NO_FATAL_FAILURE(ExpectEqual(CalculateDoubleWall(wall).spectrum, PlainDoubleWall(wall), n));
  }
}

TEST(WallsPlainEquality, OfLightDoubleWalls) {
  WallDice dice(3, false);
  for (int n = 0; n < 3000; ++n) {
    const LightDoubleWallInput wall = dice.RollLight();
    ASSERT_NO_FATAL_FAILURE(
        ExpectEqual(CalculateLightDoubleWall(wall).spectrum, PlainLightDoubleWall(wall), n));
  }
}

/// Runs `calculate`: a finite spectrum or an arithmetic failure, never anything else.
template <typename Calculate>
bool EndsWell(const Calculate& calculate) {
  try {
    for (const double band : calculate().spectrum) EXPECT_TRUE(std::isfinite(band));
    return true;
  } catch (const ArithmeticFailure&) {
    return false;
  }
}

TEST(WallsWildInput, GivesAFiniteSpectrumOrAFailure) {
  WallDice dice(4, true);
  int finished = 0;
  constexpr int kRolls = 1500;
  for (int n = 0; n < kRolls; ++n) {
    finished += EndsWell([wall = dice.RollSingle()] { return CalculateSingleWall(wall); });
    finished += EndsWell([wall = dice.RollDouble()] { return CalculateDoubleWall(wall); });
    finished += EndsWell([wall = dice.RollLight()] { return CalculateLightDoubleWall(wall); });
  }
  EXPECT_GT(finished, kRolls / 10);
  EXPECT_LT(finished, 3 * kRolls - kRolls / 10);
}

/// Where the formulas as written fail, so does the production code; where they do not, it gives the same.
TEST(WallsWildInput, FailsWhereThePlainFormulasFail) {
  WallDice dice(5, true);
  int failed = 0;
  for (int n = 0; n < 3000; ++n) {
    const LightDoubleWallInput wall = dice.RollLight();
    Spectrum plain{};
    try {
      plain = PlainLightDoubleWall(wall);
    } catch (const ArithmeticFailure&) {
      EXPECT_THROW(CalculateLightDoubleWall(wall), ArithmeticFailure) << "set-up " << n;
      ++failed;
      continue;
    }
    try {
      const Spectrum found = CalculateLightDoubleWall(wall).spectrum;
      ASSERT_NO_FATAL_FAILURE(ExpectEqual(found, plain, n));
    } catch (const ArithmeticFailure& failure) {
      // Only what is no wall at all may be refused beyond the plain formulas.
      EXPECT_TRUE(wall.dim_b_m < 0 || std::string(failure.what()).find('-') != std::string::npos ||
                  std::string(failure.what()).find("no mass") != std::string::npos ||
                  std::string(failure.what()).find("depth") != std::string::npos)
          << "set-up " << n << ": " << failure.what();
    }
  }
  EXPECT_GT(failed, 100);
}

}  // namespace
}  // namespace velmar::models
