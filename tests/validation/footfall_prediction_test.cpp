#include "validation/footfall_prediction.h"

#include <cmath>
#include <cstdio>

#include <gtest/gtest.h>

#include "tests/validation/shipped_measurements.h"
#include "validation/accuracy.h"

namespace velmar::validation {
namespace {

bool IsImpact(const Prediction& prediction) {
  return prediction.quantity == "Lnw" || prediction.quantity == "DeltaLnw";
}

double RmsOf(const std::vector<Prediction>& predictions) {
  double squares = 0.0;
  double count = 0.0;
  for (const Prediction& prediction : predictions) {
    if (!IsImpact(prediction)) continue;
    squares += prediction.Error() * prediction.Error();
    count += 1.0;
  }
  return std::sqrt(squares / count);
}

TEST(FootfallPrediction, CoversEveryFloorOfTheMeasurements) {
  const PredictionOutcome outcome = PredictWithFootfall(ShippedMeasurements());
  EXPECT_TRUE(outcome.refused.empty());
  EXPECT_GE(outcome.predictions.size(), 9U);
  for (const Prediction& prediction : outcome.predictions) {
    EXPECT_TRUE(IsImpact(prediction));
    EXPECT_EQ(prediction.model, kFootfallModel);
    EXPECT_TRUE(std::isfinite(prediction.predicted));
  }
}

/// What the model stands beside the older calculations for.
TEST(FootfallPrediction, ErrsLessThanTheOlderCalculations) {
  EXPECT_LT(RmsOf(PredictWithFootfall(ShippedMeasurements()).predictions),
            0.7 * RmsOf(PredictWithCalculations(ShippedMeasurements()).predictions));
}

TEST(FootfallPrediction, ClaimsNothingWhereTooFewFloorsWereMeasured) {
  const PredictionOutcome outcome = PredictWithFootfall(ShippedMeasurements());
  const Accuracy accuracy(outcome.predictions);
  for (const ElementKind kind :
       {ElementKind::kImpactScreed, ElementKind::kImpactCovering, ElementKind::kImpactTimber}) {
    const auto interval = accuracy.IntervalOf(kFootfallModel, kind, "Lnw", {}, 60.0);
    EXPECT_FALSE(interval.interval);
    EXPECT_EQ(interval.reason, NoEstimate::kTooFew);
  }
}

TEST(FootfallPrediction, IsOfFloorsUnderImpactAlone) {
  elements::Setup setup;
  EXPECT_FALSE(FootfallOf(setup));
  setup.calculation = elements::Calculation::kSingleWallBrick;
  EXPECT_FALSE(FootfallOf(setup));
}

}  // namespace
}  // namespace velmar::validation
