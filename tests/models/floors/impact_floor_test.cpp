#include "models/floors/impact_floor.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "tests/models/floors/plain_impact_floor.h"
#include "tests/models/floors/sample_floors.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;

/// 4 m by 5 m of 160 mm of concrete.
ImpactFloorInput Slab() {
  return {.bearing = {Concrete(160.0)}, .screed = {}, .resilient = {}, .side_a_m = 4.0, .side_b_m = 5.0};
}

ImpactFloorInput SlabWithScreed() {
  ImpactFloorInput input = Slab();
  input.screed = {Mortar(50.0)};
  return input;
}

ImpactFloorInput FloatingFloor() {
  ImpactFloorInput input = SlabWithScreed();
  input.resilient = {Mat(8.0)};
  return input;
}

// M = 0.16 x 2400 = 384 kg/m²; E h² / (1 - nu²) = 30e9 x 0.0256 / 0.96 = 8e8 N;
// fc = 350.9² / 6.2832 sqrt(12 x 384 / (0.16 x 8e8)) = 19596.85 x 0.006 = 117.581 Hz, lambda = 2.98433 m;
// sigma_c = 0.45 sqrt(18 / 2.98433) 0.8^0.25 = 1.045197;
// D = 5.7 - 5.7 lg²(2.5) = 4.797376, alpha = 0.43 x 10^-0.4797376 = 0.142473.
TEST(ImpactFloor, DescribesTheSlab) {
  const ImpactFloorOutcome outcome = CalculateImpactFloor(Slab());
  EXPECT_NEAR(outcome.mass_kg_m2, 384.0, 1e-9);
  EXPECT_NEAR(outcome.critical_frequency_hz, 117.581, 5e-4);
  EXPECT_NEAR(outcome.loss_factor, 0.015, 1e-12);
  EXPECT_EQ(outcome.bearing_thickness_m, 0.16);
}

struct HandCase {
  const char* what;
  std::size_t band;
  double ln_db;
  double r_db;
};

class ImpactFloorByHand : public testing::TestWithParam<HandCase> {};

TEST_P(ImpactFloorByHand, GivesTheBand) {
  const ImpactFloorOutcome outcome = CalculateImpactFloor(Slab());
  EXPECT_NEAR(outcome.impact_level_db[GetParam().band], GetParam().ln_db, 5e-5) << GetParam().what;
  EXPECT_NEAR(outcome.reduction_index_db[GetParam().band], GetParam().r_db, 5e-5) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Bands, ImpactFloorByHand,
    testing::Values(
        // 50 Hz, x = 0.425239, sigma = 0.354496, eta = 0.015 + 0.002660 + 0.059457 = 0.077117:
        // Ts = 2.2 / (0.077117 x 50) = 0.570561 s, Ln = 155 - 77.52994 + 10 lg(0.570561 x 0.354496 x 0.05);
        // R = 20 lg(50 x 3.1416 x 384 / 452.661) - 5.5.
        HandCase{"below the critical frequency", 0, 57.5189, 36.9936},
        // 100 Hz, sigma = sigma_c, eta = 0.015 + 0.003922 + 0.042042 = 0.060964; Rh = 38.4020, Rc = 34.7565,
        // R = 34.7565 + (34.7565 - 38.4020) lg(100 / 117.581) / lg 2.
        HandCase{"in the dip", 3, 63.2355, 36.4156},
        // 1000 Hz, eta = 0.015 + 0.000392 + 0.013295 = 0.028687: damping
        // 10 lg(2 x 0.028687 x 1000 / (3.1416 x 117.581)) = -8.0877 dB falls short of -5.5 dB.
        HandCase{"above, damping decides", 13, 66.5094, 60.4265},
        // 3150 Hz: 10 lg(2 x 0.022615 x 3150 / (3.1416 x 117.581)) = -4.138, so 78.4804 - 5.5 stands.
        HandCase{"above, mass decides", 18, 67.5422, 72.9804}));

TEST(ImpactFloor, WithoutAResilientLayerTheScreedIsPartOfTheSlab) {
  const ImpactFloorOutcome outcome = CalculateImpactFloor(SlabWithScreed());
  EXPECT_NEAR(outcome.mass_kg_m2, 484.0, 1e-9);
  EXPECT_NEAR(outcome.critical_frequency_hz, 110.804, 5e-4);
  EXPECT_NEAR(outcome.impact_level_db[0], 55.3063, 5e-5);
  EXPECT_NEAR(outcome.reduction_index_db[20], 79.0039, 5e-5);
  EXPECT_EQ(outcome.improvement.resonance_hz, 0.0);
  EXPECT_EQ(outcome.improvement.delta_lnw_db, 0.0);
  EXPECT_EQ(outcome.improvement.delta_db, acoustics::Spectrum{});
  // The bearing layers alone decide the loss factor: 0.015, not the mean with the screed.
  EXPECT_NEAR(outcome.loss_factor, 0.015, 1e-12);
}

TEST(ImpactFloor, AMatWithoutDynamicStiffnessIsNoResilientMat) {
  ImpactFloorInput input = SlabWithScreed();
  const ImpactFloorOutcome bonded = CalculateImpactFloor(input);
  input.resilient = {Mat(0.0)};
  const ImpactFloorOutcome outcome = CalculateImpactFloor(input);
  EXPECT_EQ(outcome.mass_kg_m2, bonded.mass_kg_m2);
  EXPECT_EQ(outcome.impact_level_db, bonded.impact_level_db);
}

TEST(ImpactFloor, UnderAFloatingScreedTheSlabStandsAlone) {
  const ImpactFloorOutcome slab = CalculateImpactFloor(Slab());
  const ImpactFloorOutcome outcome = CalculateImpactFloor(FloatingFloor());
  EXPECT_EQ(outcome.impact_level_db, slab.impact_level_db);
  EXPECT_EQ(outcome.reduction_index_db, slab.reduction_index_db);
  EXPECT_EQ(outcome.mass_kg_m2, slab.mass_kg_m2);
  EXPECT_NEAR(outcome.improvement.resonance_hz, 45.2548, 5e-5);
}

TEST(ImpactFloor, AResilientLayerWithoutScreedImprovesNothing) {
  ImpactFloorInput input = Slab();
  input.resilient = {Mat(8.0)};
  const ImpactFloorOutcome outcome = CalculateImpactFloor(input);
  EXPECT_EQ(outcome.improvement.resonance_hz, 0.0);
  EXPECT_NEAR(outcome.mass_kg_m2, 384.0, 1e-9);
}

TEST(ImpactFloor, AScreedOfNoThicknessIsNone) {
  ImpactFloorInput input = Slab();
  input.screed = {Mortar(0.0)};
  EXPECT_EQ(CalculateImpactFloor(input).impact_level_db, CalculateImpactFloor(Slab()).impact_level_db);
  input.resilient = {Mat(8.0)};
  EXPECT_EQ(CalculateImpactFloor(input).improvement.delta_lnw_db, 0.0);
}

TEST(ImpactFloor, CountsEverySheetOfALayer) {
  ImpactFloorInput sheets = FloatingFloor();
  sheets.bearing[0] = Concrete(40.0);
  sheets.bearing[0].multiplicity = 4;
  sheets.resilient[0] = Mat(16.0);
  sheets.resilient[0].multiplicity = 2;
  const ImpactFloorOutcome expected = CalculateImpactFloor(FloatingFloor());
  const ImpactFloorOutcome outcome = CalculateImpactFloor(sheets);
  EXPECT_NEAR(outcome.critical_frequency_hz, expected.critical_frequency_hz, 1e-9);
  EXPECT_NEAR(outcome.improvement.resonance_hz, expected.improvement.resonance_hz, 1e-9);
  EXPECT_EQ(outcome.bearing_thickness_m, 0.16);
}

TEST(ImpactFloor, DoesNotMindWhichSideIsWhichNorTheirSigns) {
  ImpactFloorInput turned = Slab();
  turned.side_a_m = -5.0;
  turned.side_b_m = 4.0;
  const ImpactFloorOutcome expected = CalculateImpactFloor(Slab());
  const ImpactFloorOutcome outcome = CalculateImpactFloor(turned);
  for (std::size_t band = 0; band < kBandCount; ++band) {
    EXPECT_NEAR(outcome.impact_level_db[band], expected.impact_level_db[band], 1e-9);
    EXPECT_NEAR(outcome.reduction_index_db[band], expected.reduction_index_db[band], 1e-9);
  }
}

/// `input` with the modulus that puts its critical frequency exactly on `frequency_hz`.
ImpactFloorInput WithCriticalFrequency(ImpactFloorInput input, double frequency_hz) {
  double& modulus = input.bearing[0].youngs_modulus_gpa;
  const auto critical_frequency = [&] { return CalculateImpactFloor(input).critical_frequency_hz; };
  const double ratio = critical_frequency() / frequency_hz;
  modulus *= ratio * ratio;
  for (int step = 0; step < 1000 && critical_frequency() != frequency_hz; ++step) {
    const double towards = critical_frequency() > frequency_hz ? 2.0 * modulus : 0.0;
    modulus = std::nextafter(modulus, towards);
  }
  return input;
}

// At 100 Hz and fc = 200 Hz the sides radiate nothing (1 - 2 f / fc = 0) and the corners
//   g2 = (0.5 ln((1 + sqrt 0.5) / (1 - sqrt 0.5)) + sqrt 2) / (4 x 3.1416² x 0.5^1.5) = 0.164537:
// sigma = lambda U g2 / S = 1.7545 x 18 x 0.164537 / 20 = 0.25981; in the dip it is
// sigma_c = 0.45 sqrt(18 / 1.7545) 0.8^0.25 = 1.3632.
TEST(ImpactFloor, HalfTheCriticalFrequencyBelongsToTheRegionBelow) {
  ImpactFloorInput input = WithCriticalFrequency(Slab(), 200.0);
  ASSERT_EQ(CalculateImpactFloor(input).critical_frequency_hz, 200.0);
  const double at_half = CalculateImpactFloor(input).impact_level_db[3];
  EXPECT_NEAR(at_half, CalculatePlainly(input).ln[3], 1e-9);

  double& modulus = input.bearing[0].youngs_modulus_gpa;
  while (CalculateImpactFloor(input).critical_frequency_hz == 200.0) {
    modulus = std::nextafter(modulus, 2.0 * modulus);
  }
  const double past_half = CalculateImpactFloor(input).impact_level_db[3];
  // 10 lg(1.3632 / 0.25981) = 7.2 dB, less what the larger radiation adds to the losses.
  EXPECT_GT(past_half - at_half, 6.5);
  EXPECT_LT(past_half - at_half, 7.2);
}

TEST(ImpactFloor, TheFixedSpectrumOfHollowBlocksKnowsNoFloor) {
  ImpactFloorInput input = FloatingFloor();
  const ImpactFloorOutcome physical = CalculateImpactFloor(input);
  input.variant = ImpactFloorVariant::kHollowBlockFixedLevel;
  const ImpactFloorOutcome outcome = CalculateImpactFloor(input);
  // 15 lg 100 + 30 = 60 dB, and 15 dB a decade.
  EXPECT_NEAR(outcome.impact_level_db[3], 60.0, 1e-9);
  EXPECT_NEAR(outcome.impact_level_db[13], 75.0, 1e-9);
  EXPECT_EQ(outcome.reduction_index_db, physical.reduction_index_db);
  EXPECT_EQ(outcome.improvement.delta_db, physical.improvement.delta_db);
}

TEST(ImpactFloor, ThicknessOfLayersAddsUpWithoutResidue) {
  ImpactFloorInput input = Slab();
  input.bearing.assign(10, Concrete(30.0));
  EXPECT_EQ(CalculateImpactFloor(input).bearing_thickness_m, 0.3);
  input.bearing = {Concrete(110.0), Concrete(90.0)};
  EXPECT_EQ(CalculateImpactFloor(input).bearing_thickness_m, 0.2);
}

struct FailureCase {
  const char* what;
  std::function<void(ImpactFloorInput&)> spoil;
  MessageRow cause;
};

class ImpactFloorFailure : public testing::TestWithParam<FailureCase> {};

TEST_P(ImpactFloorFailure, NamesItsCause) {
  ImpactFloorInput input = FloatingFloor();
  GetParam().spoil(input);
  try {
    CalculateImpactFloor(input);
    FAIL() << GetParam().what;
  } catch (const ArithmeticFailure& failure) {
    ASSERT_EQ(failure.UserMessage().size(), 2u) << failure.what();
    EXPECT_EQ(LeadingRow(failure.UserMessage()[1]), GetParam().cause) << failure.what();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Causes, ImpactFloorFailure,
    testing::Values(FailureCase{"no bearing layer", [](auto& f) { f.bearing.clear(); }, kZeroThicknessRow},
                    FailureCase{"no thickness", [](auto& f) { f.bearing[0].thickness_mm = 0.0; },
                                kZeroThicknessRow},
                    FailureCase{"no mass", [](auto& f) { f.bearing[0].density_kg_m3 = 0.0; }, kZeroMassRow},
                    FailureCase{"no stiffness", [](auto& f) { f.bearing[0].youngs_modulus_gpa = 0.0; },
                                kInvalidStiffnessRow},
                    FailureCase{"Poisson's ratio of 1", [](auto& f) { f.bearing[0].poissons_ratio = 1.0; },
                                kInvalidStiffnessRow},
                    FailureCase{"no side", [](auto& f) { f.side_a_m = 0.0; }, kZeroDimensionRow},
                    FailureCase{"a side that is no number", [](auto& f) { f.side_b_m = std::nan(""); },
                                kZeroDimensionRow},
                    FailureCase{"a negative loss factor", [](auto& f) { f.bearing[0].loss_factor = -1.0; },
                                kInvalidLossFactorRow},
                    FailureCase{"a negative dynamic stiffness",
                                [](auto& f) { f.resilient[0].dynamic_stiffness_mn_m3 = -1.0; },
                                kInvalidDynamicStiffnessRow},
                    FailureCase{"a screed lighter than nothing",
                                [](auto& f) { f.screed[0].density_kg_m3 = -1.0; }, kZeroMassRow}));

TEST(ImpactFloor, EqualsThePlainFormulasOnRandomFloors) {
  std::mt19937 random(7172);
  for (int run = 0; run < 4000; ++run) {
    const ImpactFloorInput input{.bearing = RandomLayers(random, 10),
                                 .screed = RandomLayers(random, 10),
                                 .resilient = RandomMats(random),
                                 .side_a_m = Between(random, 0.05, 30.0),
                                 .side_b_m = Between(random, 0.05, 30.0)};
    const ImpactFloorOutcome outcome = CalculateImpactFloor(input);
    const PlainImpactFloor plain = CalculatePlainly(input);
    for (std::size_t band = 0; band < kBandCount; ++band) {
      ASSERT_TRUE(std::isfinite(outcome.impact_level_db[band]));
      ASSERT_NEAR(outcome.impact_level_db[band], plain.ln[band], 1e-9) << run << " fc " << plain.fc;
      ASSERT_NEAR(outcome.reduction_index_db[band], plain.r[band], 1e-9) << run << " fc " << plain.fc;
    }
  }
}

/// Any value a field could hold, sense or not.
double Wild(std::mt19937& random) {
  constexpr std::array kOdd = {0.0, -1.0, 1.0, 1e-310, 1e300, -1e300, 1e18};
  if (Between(random, 0.0, 1.0) < 0.8) return std::exp(Between(random, -8.0, 9.0));
  return kOdd[std::uniform_int_distribution<std::size_t>(0, kOdd.size() - 1)(random)];
}

TEST(ImpactFloor, NeverGivesANumberThatIsNone) {
  std::mt19937 random(99);
  int failures = 0;
  int outcomes = 0;
  for (int run = 0; run < 5000; ++run) {
    ImpactFloorInput input = FloatingFloor();
    for (PlateLayer* layer : {&input.bearing[0], &input.screed[0]}) {
      *layer = {.multiplicity = 1,
                .thickness_mm = Wild(random),
                .density_kg_m3 = Wild(random),
                .youngs_modulus_gpa = Wild(random),
                .loss_factor = Wild(random),
                .poissons_ratio = Between(random, -1.5, 1.5)};
    }
    input.resilient[0].dynamic_stiffness_mn_m3 = Wild(random);
    input.side_a_m = Wild(random);
    input.side_b_m = Wild(random);
    try {
      const ImpactFloorOutcome outcome = CalculateImpactFloor(input);
      ++outcomes;
      for (std::size_t band = 0; band < kBandCount; ++band) {
        ASSERT_TRUE(std::isfinite(outcome.impact_level_db[band]) &&
                    std::isfinite(outcome.reduction_index_db[band]) &&
                    std::isfinite(outcome.improvement.delta_db[band]));
      }
    } catch (const ArithmeticFailure&) {
      ++failures;
    }
  }
  EXPECT_GT(outcomes, 100);
  EXPECT_GT(failures, 100);
}

}  // namespace
}  // namespace velmar::models
