#include "models/floors/screed_improvement.h"

#include <cmath>
#include <cstddef>

#include <gtest/gtest.h>

#include "foundation/failure.h"

namespace velmar::models {
namespace {

using acoustics::BandCentre;
using acoustics::kBandCount;

// 100 kg/m² on 8 MN/m³: f0 = 160 sqrt(0.08) = 45.2548 Hz; at 500 Hz 30 lg(500 / 45.2548) = 31.2992 dB;
// weighted 15 lg 12.5 + 18 = 34.4537 dB.
TEST(ScreedImprovement, ReproducesAHandComputation) {
  const ScreedImprovement improvement = FindScreedImprovement(100.0, 8.0);
  EXPECT_NEAR(improvement.resonance_hz, 45.2548, 5e-5);
  EXPECT_NEAR(improvement.delta_db[10], 31.2992, 5e-5);
  EXPECT_NEAR(improvement.delta_lnw_db, 34.4537, 5e-5);
}

TEST(ScreedImprovement, RisesByThirtyDecibelsADecadeAndIsNegativeBelowTheResonance) {
  const ScreedImprovement improvement = FindScreedImprovement(50.0, 50.0);
  EXPECT_DOUBLE_EQ(improvement.resonance_hz, 160.0);
  EXPECT_NEAR(improvement.delta_db[5], 0.0, 1e-9);
  EXPECT_NEAR(improvement.delta_db[13] - improvement.delta_db[3], 30.0, 1e-9);
  EXPECT_NEAR(improvement.delta_db[0], 30.0 * std::log10(50.0 / 160.0), 1e-9);
}

// 15 lg(m' / s') + 18 against 30 lg(500 / f0): the quotient m' / s' falls out, 18 - 30 lg(500 / 160) stays.
TEST(ScreedImprovement, WeightedValueStandsAFixedStepAboveTheBandOf500Hz) {
  for (const double mass : {20.0, 70.0, 150.0}) {
    for (const double stiffness : {4.0, 20.0, 200.0}) {
      const ScreedImprovement improvement = FindScreedImprovement(mass, stiffness);
      EXPECT_NEAR(improvement.delta_lnw_db - improvement.delta_db[10],
                  18.0 - 30.0 * std::log10(500.0 / 160.0), 1e-9);
    }
  }
}

TEST(ScreedImprovement, IsNoneWithoutScreedOrResilientMat) {
  for (const auto& [mass, stiffness] : {std::pair{0.0, 8.0}, {100.0, 0.0}, {0.0, 0.0}}) {
    const ScreedImprovement improvement = FindScreedImprovement(mass, stiffness);
    EXPECT_EQ(improvement.resonance_hz, 0.0);
    EXPECT_EQ(improvement.delta_lnw_db, 0.0);
    EXPECT_EQ(improvement.delta_db, acoustics::Spectrum{});
  }
}

TEST(ScreedImprovement, FailsOnANegativeMassOrStiffness) {
  EXPECT_THROW(FindScreedImprovement(-100.0, 8.0), ArithmeticFailure);
  EXPECT_THROW(FindScreedImprovement(100.0, -8.0), ArithmeticFailure);
  EXPECT_THROW(FindScreedImprovement(-100.0, -8.0), ArithmeticFailure);
}

}  // namespace
}  // namespace velmar::models
