#include "models/absorbers/porous_absorber.h"

#include <gtest/gtest.h>

namespace velmar::models {
namespace {

// 60 mm of rock wool with 14000 Pa·s/m², Delany and Bazley with the models' air, worked out apart.
TEST(AbsorptionOf, FollowsDelanyAndBazley) {
  const PorousAbsorber wool{14000.0, 0.06};
  EXPECT_NEAR(AbsorptionOf(wool, 100)->coefficient, 0.027, 0.0006);
  EXPECT_NEAR(AbsorptionOf(wool, 500)->coefficient, 0.676, 0.0006);
  EXPECT_NEAR(AbsorptionOf(wool, 1250)->coefficient, 0.996, 0.0006);
  EXPECT_NEAR(AbsorptionOf(wool, 6300)->coefficient, 0.995, 0.0006);
}

TEST(AbsorptionOf, SaysWhereTheRegressionWasMeasured) {
  const PorousAbsorber wool{14000.0, 0.06};  // 0.01 to 1 is 108.5 Hz to 10853 Hz
  EXPECT_FALSE(AbsorptionOf(wool, 100)->inside_range);
  EXPECT_TRUE(AbsorptionOf(wool, 125)->inside_range);
  EXPECT_FALSE(AbsorptionOf({1000.0, 0.06}, 1000)->inside_range);
}

TEST(AbsorptionOf, IsAPartOfWhatComesIn) {
  for (const double sigma : {2000.0, 10000.0, 50000.0}) {
    for (const double thickness : {0.02, 0.05, 0.1}) {
      for (double frequency = 100; frequency < 6500; frequency *= 1.26) {
        const auto absorption = AbsorptionOf({sigma, thickness}, frequency);
        if (!absorption) continue;
        EXPECT_GE(absorption->coefficient, 0.0);
        EXPECT_LE(absorption->coefficient, 1.0);
      }
    }
  }
}

TEST(AbsorptionOf, AThickerLayerTakesMoreOfALowNote) {
  EXPECT_GT(AbsorptionOf({10000.0, 0.1}, 250)->coefficient, AbsorptionOf({10000.0, 0.05}, 250)->coefficient);
}

TEST(AbsorptionOf, GivesNothingWithoutALayer) {
  EXPECT_FALSE(AbsorptionOf({0.0, 0.06}, 500));
  EXPECT_FALSE(AbsorptionOf({14000.0, 0.0}, 500));
  EXPECT_FALSE(AbsorptionOf({14000.0, 0.06}, 0));
  EXPECT_FALSE(AbsorptionOf({34000.0, 0.004}, 100)) << "the regression calls so thin a layer a source";
}

}  // namespace
}  // namespace velmar::models
