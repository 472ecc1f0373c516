#include "models/walls/light_leaf.h"

#include <cmath>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

// One board: h = 0.0125 m, m = 10 kg/m², E h²/(1 - nu²) = 2.4e9 * 1.5625e-4 / 0.96 = 390625 N,
// fc = 19596.832 sqrt(12 * 800 / 390625) = 3072.13 Hz.
const PlateLayer kBoard{1, 12.5, 800, 2.4, 0.02, 0.2};
// fc = 1000 Hz exactly would need a modulus of 22.65 GPa; this one lies at 999.9 Hz.
const PlateLayer kStiff{1, 12.5, 800, 22.65, 0.02, 0.2};

LeafRows Leaf(const PlateLayer& row, int multiplicity = 1) {
  LeafRows leaf;
  leaf.rows[0] = row;
  leaf.rows[0].multiplicity = multiplicity;
  leaf.count = 1;
  return leaf;
}

TEST(LightLeaf, FollowsTheMassLawFarBelowItsCriticalFrequency) {
  const LightLeaf leaf = FindLightLeaf(Leaf(kBoard), 0.02, 50, CavityKind::kFibrous);
  EXPECT_NEAR(leaf.highest_critical_frequency_hz, 350.9 * 350.9 / 6.2832 * std::sqrt(12 * 800 / 390625.0),
              1e-9);
  EXPECT_NEAR(leaf.bands[2], 20 * std::log10(80 * 10.0) - 48, 1e-12);  // the grid point 80 Hz alone
  EXPECT_NEAR(leaf.bands[0], 20 * std::log10(50 * 10.0) - 48, 1e-12);  // the grid begins at 50 Hz
}

// RHalf = 20 lg(10 fc / 2) - 48, RCrit = 20 lg(6.2832 * 10 fc / 905.322) + 10 lg(4 * 0.02 * 3.1416 / (2 *
// 3.1416²)); the band 800 Hz holds 710 ... 890 Hz, all between fc / 2 and fc, so it is the line at 800 Hz.
TEST(LightLeaf, FallsAlongALineStraightInTheFrequency) {
  const LightLeaf leaf = FindLightLeaf(Leaf(kStiff), 0.02, 50, CavityKind::kFibrous);
  const double fc = leaf.highest_critical_frequency_hz;
  ASSERT_NEAR(fc, 1000, 1);
  const double half = 20 * std::log10(10 * fc / 2) - 48;
  const double critical = 20 * std::log10(6.2832 * 10 * fc / 905.322) + 10 * std::log10(0.04 / 3.1416);
  EXPECT_NEAR(leaf.bands[12], half + (critical - half) * (800 - fc / 2) / (fc / 2), 1e-10);
}

// 4000 Hz and its neighbours lie above fc: mean of 20 lg(6.2832 * 10 f / 905.322) + 10 lg(0.04 f / (3.1416
// fc)).
TEST(LightLeaf, RisesWithNineDecibelsAnOctaveAboveItsCriticalFrequency) {
  const LightLeaf leaf = FindLightLeaf(Leaf(kStiff), 0.02, 50, CavityKind::kFibrous);
  double mean = 0;
  int points = 0;
  for (int f = 3550; f < 4467; f += 10, ++points) {
    mean += 20 * std::log10(6.2832 * 10 * f / 905.322) +
            10 * std::log10(0.04 * f / (3.1416 * leaf.highest_critical_frequency_hz));
  }
  EXPECT_NEAR(leaf.bands[19], mean / points, 1e-10);
}

TEST(LightLeaf, NeverExceedsTheMassLaw) {
  const LightLeaf leaf = FindLightLeaf(Leaf(kStiff), 50, 50, CavityKind::kFibrous);
  EXPECT_NEAR(leaf.bands[2], 20 * std::log10(800.0) - 48, 1e-12);
  double mean = 0;
  int points = 0;
  for (int f = 4470; f < 4999; f += 10, ++points) mean += 20 * std::log10(f * 10.0) - 48;
  EXPECT_NEAR(leaf.bands[20], mean / points, 1e-10);
}

TEST(LightLeaf, OfTwoEqualSheetsGainsThreeDecibels) {
  const LightLeaf one = FindLightLeaf(Leaf(kBoard), 0.02, 50, CavityKind::kFibrous);
  const LightLeaf two = FindLightLeaf(Leaf(kBoard, 2), 0.02, 50, CavityKind::kFibrous);
  LeafRows two_rows = Leaf(kBoard);
  two_rows.rows[1] = kBoard;
  two_rows.count = 2;
  const LightLeaf rows = FindLightLeaf(two_rows, 0.02, 50, CavityKind::kFibrous);
  for (std::size_t band = 0; band < 21; ++band) {
    EXPECT_NEAR(two.bands[band] - one.bands[band], 10 * std::log10(2.0), 1e-10);
    EXPECT_NEAR(rows.bands[band], two.bands[band], 1e-10);
  }
}

TEST(LightLeaf, LosesTwoDecibelsStrictlyAboveTheResonanceOfAnEmptyCavity) {
  const LightLeaf filled = FindLightLeaf(Leaf(kBoard), 0.02, 80, CavityKind::kFibrous);
  const LightLeaf empty = FindLightLeaf(Leaf(kBoard), 0.02, 80, CavityKind::kEmpty);
  const LightLeaf layers = FindLightLeaf(Leaf(kBoard), 0.02, 80, CavityKind::kGenericMaterial);
  EXPECT_EQ(empty.bands[2], filled.bands[2]);  // 80 Hz is not above 80 Hz
  EXPECT_NEAR(empty.bands[3], filled.bands[3] - 2, 1e-12);
  EXPECT_EQ(layers.bands, filled.bands);
}

TEST(LightLeaf, KnowsItsStiffestSheetsCriticalFrequencyOnlyByItsHighest) {
  LeafRows leaf = Leaf(kBoard);
  leaf.rows[1] = kStiff;
  leaf.count = 2;
  EXPECT_EQ(FindLightLeaf(leaf, 0.02, 50, CavityKind::kFibrous).highest_critical_frequency_hz,
            FindLightLeaf(Leaf(kBoard), 0.02, 50, CavityKind::kFibrous).highest_critical_frequency_hz);
}

TEST(LightLeaf, RefusesSheetsWithoutLosses) {
  try {
    FindLightLeaf(Leaf(kBoard), 0, 50, CavityKind::kFibrous);
    FAIL() << "no failure";
  } catch (const ArithmeticFailure& failure) {
    EXPECT_EQ(failure.UserMessage().back(), MessageLine{kZeroLossFactorRow});
  }
}

}  // namespace
}  // namespace velmar::models
