#include "models/floors/floating_screed.h"

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "models/relations/relation.h"
#include "tests/models/floors/plain_floating_screed.h"
#include "tests/models/floors/sample_floors.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;

/// 4 m by 5 m: 160 mm of concrete, 50 mm of mortar on a mat.
FloatingScreedInput Floor() {
  return {.slab = {Concrete(160.0)},
          .screed = {Mortar(50.0)},
          .resilient = {Mat(8.0)},
          .side_a_m = 4.0,
          .side_b_m = 5.0};
}

FloatingScreedInput RandomFloor(std::mt19937& random) {
  return {.slab = RandomLayers(random, 10),
          .screed = RandomLayers(random, 10),
          .resilient = RandomMats(random),
          .side_a_m = Between(random, 0.05, 30.0),
          .side_b_m = Between(random, 0.05, 30.0)};
}

// m1 = 0.16 x 2400 = 384, m2 = 0.05 x 2000 = 100 kg/m², the mat 10 x 30 x 0.001 = 0.3 kg/m².
// E h² / (1 - nu²): 30e9 x 0.0256 / 0.96 = 8e8 and 25e9 x 0.0025 / 0.96 = 6.510417e7, together 8.6510417e8 N;
// bending = 8.6510417e8 x 0.21 / 12 = 1.5139323e7 N m; eta = (0.0024 + 0.0005) / 0.21 = 0.0138095;
// fc = 19596.85 sqrt(12 x (484.3 / 0.21) / 8.6510417e8) = 110.838 Hz.
TEST(FloatingScreed, SumsSlabAndScreedIntoOnePlate) {
  const FloatingScreedOutcome outcome = CalculateFloatingScreed(Floor());
  EXPECT_NEAR(outcome.slab_mass_kg_m2, 384.0, 1e-9);
  EXPECT_NEAR(outcome.screed_mass_kg_m2, 100.0, 1e-9);
  EXPECT_NEAR(outcome.mass_kg_m2, 484.0, 1e-9);
  EXPECT_NEAR(outcome.bending_n_m, 1.5139323e7, 1.0);
  EXPECT_NEAR(outcome.loss_factor, 0.0138095, 5e-8);
  EXPECT_NEAR(outcome.critical_frequency_hz, 110.838, 5e-4);
}

TEST(FloatingScreed, EqualsThePlainFormulas) {
  std::mt19937 random(496);
  std::vector<FloatingScreedInput> floors = {Floor()};
  for (int run = 0; run < 5; ++run) floors.push_back(RandomFloor(random));
  for (const FloatingScreedInput& floor : floors) {
    const acoustics::Spectrum expected = PlainFloatingScreed(floor);
    const FloatingScreedOutcome outcome = CalculateFloatingScreed(floor);
    for (std::size_t band = 0; band < kBandCount; ++band) {
      EXPECT_NEAR(outcome.reduction_index_db[band], expected[band], 1e-9) << band;
    }
  }
}

/// What relation 17 reads of the floor.
RelationInput RelationInputOf(const FloatingScreedInput& input) {
  const FloatingScreedOutcome outcome = CalculateFloatingScreed(input);
  RelationInput relation;
  relation.leaf1_mass_kg_m2 = outcome.slab_mass_kg_m2;
  relation.leaf2_mass_kg_m2 = outcome.screed_mass_kg_m2;
  for (const ResilientMat& mat : input.resilient) {
    relation.resilient_layers.push_back({mat.dynamic_stiffness_mn_m3, mat.multiplicity});
  }
  return relation;
}

// M = 484 kg/m²: 23 lg 484 - 8 = 53.7514 dB. f0 = 160 sqrt((1 / 100 + 1 / 384) 8) = 50.8068 Hz:
// 72 - (26.8757 + 34.1184) = 11.0058 dB.
TEST(FloatingScreed, HandsItsMassesToTheRelation) {
  const RelationValue value = EvaluateRelation(RelationId::kFloatingScreed, RelationInputOf(Floor()));
  EXPECT_NEAR(value.improvement_db, 11.0058F, 5e-4F);
  EXPECT_NEAR(value.rating_db, 53.7514F + 11.0058F, 5e-4F);
}

TEST(FloatingScreed, WithoutResilientLayersTheRelationImprovesNothing) {
  FloatingScreedInput input = Floor();
  input.resilient.clear();
  const RelationValue value = EvaluateRelation(RelationId::kFloatingScreed, RelationInputOf(input));
  EXPECT_EQ(value.improvement_db, 0.0F);
  EXPECT_NEAR(value.rating_db, 53.7514F, 5e-4F);
}

TEST(FloatingScreed, WithoutResilientLayersThePlateWeighsSlabAndScreed) {
  FloatingScreedInput input = Floor();
  input.resilient.clear();
  const FloatingScreedOutcome outcome = CalculateFloatingScreed(input);
  EXPECT_NEAR(outcome.critical_frequency_hz, 110.804, 5e-4);
  // One stack of the same layers is the same plate.
  input.slab.push_back(input.screed[0]);
  input.screed.clear();
  const FloatingScreedOutcome merged = CalculateFloatingScreed(input);
  EXPECT_EQ(merged.reduction_index_db, outcome.reduction_index_db);
  EXPECT_EQ(merged.screed_mass_kg_m2, 0.0);
}

TEST(FloatingScreed, ResilientLayersWeighInThePlateAlone) {
  FloatingScreedInput heavy = Floor();
  heavy.resilient[0].multiplicity = 3;
  heavy.resilient[0].density_kg_m3 = 1000.0;
  const FloatingScreedOutcome light = CalculateFloatingScreed(Floor());
  const FloatingScreedOutcome outcome = CalculateFloatingScreed(heavy);
  EXPECT_EQ(outcome.mass_kg_m2, light.mass_kg_m2);
  EXPECT_EQ(outcome.loss_factor, light.loss_factor);
  EXPECT_EQ(outcome.bending_n_m, light.bending_n_m);
  // 30 kg/m² in place of 0.3: fc grows with the root of the mass, 514 to 484.3.
  EXPECT_NEAR(outcome.critical_frequency_hz / light.critical_frequency_hz, std::sqrt(514.0 / 484.3), 1e-9);
  EXPECT_NE(outcome.reduction_index_db, light.reduction_index_db);
}

TEST(FloatingScreed, StiffnessOfTheMatsAndUnknownDensitiesDoNotMatter) {
  FloatingScreedInput input = Floor();
  input.resilient[0].dynamic_stiffness_mn_m3 = 900.0;
  EXPECT_EQ(CalculateFloatingScreed(input).reduction_index_db,
            CalculateFloatingScreed(Floor()).reduction_index_db);
  input.resilient[0].density_kg_m3 = -1.0;
  FloatingScreedInput bare = Floor();
  bare.resilient.clear();
  EXPECT_EQ(CalculateFloatingScreed(input).reduction_index_db,
            CalculateFloatingScreed(bare).reduction_index_db);
}

struct FailureCase {
  const char* what;
  void (*spoil)(FloatingScreedInput&);
  MessageRow cause;
};

class FloatingScreedFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(FloatingScreedFailure, NamesItsCause) {
  FloatingScreedInput input = Floor();
  GetParam().spoil(input);
  try {
    CalculateFloatingScreed(input);
    FAIL() << GetParam().what;
  } catch (const ArithmeticFailure& failure) {
    ASSERT_EQ(failure.UserMessage().size(), 2u) << failure.what();
    EXPECT_EQ(LeadingRow(failure.UserMessage()[1]), GetParam().cause) << failure.what();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Causes, FloatingScreedFailure,
    testing::Values(FailureCase{"no layers", [](FloatingScreedInput& f) { f.slab.clear(), f.screed.clear(); },
                                kZeroThicknessRow},
                    FailureCase{"no mass",
                                [](FloatingScreedInput& f) {
                                  f.slab[0].density_kg_m3 = 0.0;
                                  f.screed[0].density_kg_m3 = 0.0;
                                },
                                kZeroMassRow},
                    FailureCase{"no stiffness",
                                [](FloatingScreedInput& f) {
                                  f.slab[0].youngs_modulus_gpa = 0.0;
                                  f.screed[0].youngs_modulus_gpa = 0.0;
                                },
                                kInvalidStiffnessRow},
                    FailureCase{"no side", [](FloatingScreedInput& f) { f.side_b_m = 0.0; },
                                kZeroDimensionRow}));

TEST(FloatingScreed, RandomFloorsGiveFiniteNumbers) {
  std::mt19937 random(1717);
  for (int run = 0; run < 1000; ++run) {
    const FloatingScreedOutcome outcome = CalculateFloatingScreed(RandomFloor(random));
    for (const double level : outcome.reduction_index_db) ASSERT_TRUE(std::isfinite(level)) << run;
    ASSERT_TRUE(std::isfinite(outcome.critical_frequency_hz) && std::isfinite(outcome.bending_n_m));
  }
}

}  // namespace
}  // namespace velmar::models
