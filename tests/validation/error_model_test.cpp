#include "validation/error_model.h"

#include <cmath>
#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

namespace velmar::validation {
namespace {

// Table of Student's t, one-sided 95 %.
TEST(StudentQuantile, FollowsTheTable) {
  EXPECT_NEAR(StudentQuantile95(1), 6.314, 5e-4);
  EXPECT_NEAR(StudentQuantile95(2), 2.920, 5e-4);
  EXPECT_NEAR(StudentQuantile95(3), 2.353, 5e-4);
  EXPECT_NEAR(StudentQuantile95(8), 1.860, 5e-4);
  EXPECT_NEAR(StudentQuantile95(13), 1.771, 5e-4);
  EXPECT_NEAR(StudentQuantile95(40), 1.684, 5e-4);
  EXPECT_NEAR(StudentQuantile95(1000), 1.646, 5e-4);
}

std::vector<Observation> Of(const std::vector<double>& errors) {
  std::vector<Observation> observations;
  for (const double error : errors) {
    observations.push_back({.error_db = error,
                            .source = observations.size() % 2 == 0 ? "one" : "other",
                            .features = {.mass_kg_m2 = 100.0}});
  }
  return observations;
}

// Errors without any effect of the source: the interval is the textbook's mean, t and sqrt(1 + 1/n).
TEST(ErrorModel, WithoutTrendAndSourceItIsThePredictionIntervalOfAMean) {
  const ErrorModel model(Of({-3, -3, 3, 3, -3, -3, 3, 3, -3, -3, 3, 3}));
  const ErrorEstimate estimate = model.At({.mass_kg_m2 = 100.0});
  EXPECT_NEAR(estimate.bias_db, 0.0, 1e-9);
  // Two sources of six with equal means: within = 108/10, no variance between.
  EXPECT_NEAR(estimate.half_width_db, 1.7959 * std::sqrt(10.8 * (1.0 + 1.0 / 12.0)), 1e-3);
}

TEST(ErrorModel, ErrorsThatNeverVaryKeepTheSpreadOfReproducibility) {
  const ErrorEstimate estimate = ErrorModel(Of({2, 2, 2, 2, 2, 2, 2, 2, 2})).At({.mass_kg_m2 = 100.0});
  EXPECT_NEAR(estimate.bias_db, 2.0, 1e-9);
  EXPECT_NEAR(estimate.half_width_db, 1.8595 * 1.2, 1e-3);
}

TEST(ErrorModel, SourcesThatDisagreeWidenTheInterval) {
  std::vector<Observation> agree = Of({-1, 1, 1, -1, -1, 1, 1, -1, -1, 1, 1, -1});
  std::vector<Observation> disagree = agree;
  for (std::size_t i = 0; i < disagree.size(); ++i) disagree[i].error_db += i % 2 == 0 ? -4.0 : 4.0;
  EXPECT_GT(ErrorModel(disagree).At({.mass_kg_m2 = 100.0}).half_width_db,
            3.0 * ErrorModel(agree).At({.mass_kg_m2 = 100.0}).half_width_db);
}

TEST(ErrorModel, FollowsATrendThatIsThere) {
  std::mt19937 random(1);
  std::normal_distribution<double> noise(0.0, 1.5);
  std::vector<Observation> observations;
  for (int i = 0; i < 24; ++i) {
    const double mass = 20.0 * std::pow(1.2, i);
    observations.push_back({.error_db = 10.0 * std::log10(mass / 100.0) + noise(random),
                            .source = std::to_string(i % 4),
                            .features = {.mass_kg_m2 = mass}});
  }
  const ErrorModel model(observations);
  EXPECT_TRUE(model.HasTrend(0));
  EXPECT_FALSE(model.HasTrend(1));
  EXPECT_NEAR(model.At({.mass_kg_m2 = 1000.0}).bias_db, 10.0, 1.5);
  EXPECT_NEAR(model.At({.mass_kg_m2 = 30.0}).bias_db, -5.2, 1.5);
}

TEST(ErrorModel, NoTrendIsReadOutOfNoise) {
  std::mt19937 random(2);
  std::normal_distribution<double> noise(0.0, 3.0);
  int trends = 0;
  for (int trial = 0; trial < 50; ++trial) {
    std::vector<Observation> observations;
    for (int i = 0; i < 20; ++i) {
      observations.push_back({.error_db = noise(random),
                              .source = std::to_string(i % 3),
                              .features = {.mass_kg_m2 = 20.0 * (i + 1), .depth_mm = 50.0 + 7 * (i % 5)}});
    }
    const ErrorModel model(observations);
    trends += model.HasTrend(0) || model.HasTrend(1) ? 1 : 0;
  }
  EXPECT_LE(trends, 5);
}

// Normal errors with an effect of the source: what the interval promises is what it holds.
TEST(ErrorModel, HoldsWhatItPromisesOfErrorsAsItAssumesThem) {
  std::mt19937 random(3);
  std::normal_distribution<double> normal(0.0, 1.0);
  Coverage one_out;
  Coverage source_out;
  for (int trial = 0; trial < 40; ++trial) {
    std::vector<Observation> observations;
    for (int source = 0; source < 6; ++source) {
      const double effect = 1.5 * normal(random);
      for (int i = 0; i < 5; ++i) {
        observations.push_back({.error_db = effect + 2.5 * normal(random),
                                .source = std::to_string(source),
                                .features = {.mass_kg_m2 = 100.0}});
      }
    }
    const Coverage one = LeaveOneOut(observations);
    const Coverage sources = LeaveOneSourceOut(observations);
    one_out.held += one.held;
    one_out.tried += one.tried;
    source_out.held += sources.held;
    source_out.tried += sources.tried;
  }
  EXPECT_EQ(one_out.tried, 1200U);
  EXPECT_NEAR(one_out.Share(), 0.90, 0.03);
  EXPECT_NEAR(source_out.Share(), 0.89, 0.04);
}

TEST(ErrorModel, TwoObservationsSayNothing) { EXPECT_THROW(ErrorModel(Of({1, 2})), std::invalid_argument); }

TEST(WithinMeasured, ATenthBeyondIsTheLimit) {
  std::vector<Observation> measured = Of({0, 0, 0});
  measured[0].features = {.mass_kg_m2 = 20.0, .depth_mm = 50.0};
  measured[1].features = {.mass_kg_m2 = 40.0, .depth_mm = 100.0, .filled = true};
  measured[2].features = {.mass_kg_m2 = 30.0, .depth_mm = 100.0};
  for (Observation& observation : measured) observation.predicted_db = 45.0;
  EXPECT_TRUE(IsWithinMeasured(measured, {.mass_kg_m2 = 44.0, .depth_mm = 46.0}, 45.0));
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 44.1, .depth_mm = 46.0}, 45.0));
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 17.9, .depth_mm = 46.0}, 45.0));
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 30.0, .depth_mm = 44.0}, 45.0));
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 30.0, .depth_mm = 0.0}, 45.0));
  EXPECT_TRUE(IsWithinMeasured(measured, {.mass_kg_m2 = 30.0, .depth_mm = 50.0}, 50.0));
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 30.0, .depth_mm = 50.0}, 50.1));
  measured.erase(measured.begin() + 1);
  EXPECT_FALSE(IsWithinMeasured(measured, {.mass_kg_m2 = 30.0, .depth_mm = 50.0, .filled = true}, 45.0));
  EXPECT_FALSE(IsWithinMeasured({}, {}, 45.0));
}

}  // namespace
}  // namespace velmar::validation
