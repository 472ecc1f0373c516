#include "models/facades/composite_element.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <random>
#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "acoustics/airborne_rating.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::models {
namespace {

using acoustics::kBandCount;
using acoustics::Spectrum;

Spectrum Flat(double level_db) {
  Spectrum spectrum{};
  spectrum.fill(level_db);
  return spectrum;
}

FacadePart FlatPart(double level_db, double mass = 0.0) {
  return {.rating_db = level_db, .bands_db = Flat(level_db), .surface_mass_kg_m2 = mass};
}

/// 10 m² of wall with the given components.
CompositeElementInput Facade(double wall_db, std::vector<FacadeComponent> components) {
  return {.area_m2 = 10.0, .opaque = FlatPart(wall_db), .components = std::move(components)};
}

CompositeSpectrum SpectrumOf(const CompositeElementInput& input) {
  const auto outcome = CalculateCompositeSpectrum(input);
  if (!std::holds_alternative<CompositeSpectrum>(outcome)) throw std::logic_error("refused");
  return std::get<CompositeSpectrum>(outcome);
}

CompositeRating RatingOf(const CompositeElementInput& input) {
  const auto outcome = CalculateCompositeRating(input);
  if (!std::holds_alternative<CompositeRating>(outcome)) throw std::logic_error("refused");
  return std::get<CompositeRating>(outcome);
}

std::vector<int> RefusedRows(const CompositeElementInput& input) {
  const auto outcome = CalculateCompositeSpectrum(input);
  std::vector<int> rows;
  if (const auto* refusal = std::get_if<CompositeRefusal>(&outcome)) {
    for (const MessageLine& line : refusal->message) rows.push_back(LeadingRow(line).number);
  }
  return rows;
}

// Brick veneer of 59 dB (9.5 m²) with a pane of 35 dB (1.08 m²):
// (9.5 10^-5.9 + 1.08 10^-3.5) / 10.58 = 3.341 10^-5, so R = 44.76 dB.
TEST(CompositeElement, OfABrickWallWithAPane) {
  CompositeElementInput input = Facade(59.0, {{.part = FlatPart(35.0), .area_m2 = 1.08}});
  input.area_m2 = 9.5 + 1.08;
  EXPECT_NEAR(SpectrumOf(input).reduction_index_db[13], 44.76, 0.005);
}

// 0.8 10^-5 + 0.2 10^-3 = 2.08 10^-4, so R = 40 - 10 lg 2.08 = 36.819 dB.
TEST(CompositeElement, WeighsEachPartWithItsShareOfTheArea) {
  const CompositeSpectrum outcome = SpectrumOf(Facade(50.0, {{.part = FlatPart(30.0), .area_m2 = 2.0}}));
  for (const double level : outcome.reduction_index_db) {
    EXPECT_NEAR(level, 40.0 - 10.0 * std::log10(2.08), 1e-9);
  }
}

// The wall keeps all of its area: 10^-5 + (10 / 10) 10^-4 = 1.1 10^-4, so R = 40 - 10 lg 1.1 = 39.586 dB.
TEST(CompositeElement, ASmallElementCountsWithTenSquareMetresOfAbsorption) {
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(40.0), .area_m2 = 0.0}});
  const double expected = 40.0 - 10.0 * std::log10(1.1);
  EXPECT_NEAR(SpectrumOf(input).reduction_index_db[7], expected, 1e-9);
  for (int tightness_class = 0; tightness_class <= 4; ++tightness_class) {
    input.components[0].tightness_class = tightness_class;
    EXPECT_NEAR(SpectrumOf(input).reduction_index_db[7], expected, 1e-9) << "class " << tightness_class;
    EXPECT_EQ(RatingOf(input).rw_db, 40.0) << "class " << tightness_class;
  }
}

struct ClassCase {
  int tightness_class;
  double correction_db;
};

class CompositeElementClass : public testing::TestWithParam<ClassCase> {};

TEST_P(CompositeElementClass, LowersTheComponentsReductionIndex) {
  const auto [tightness_class, correction_db] = GetParam();
  EXPECT_EQ(TightnessCorrection(tightness_class), correction_db);
  const CompositeElementInput corrected =
      Facade(60.0, {{.part = FlatPart(40.0), .area_m2 = 4.0, .tightness_class = tightness_class}});
  const CompositeElementInput lowered =
      Facade(60.0, {{.part = FlatPart(40.0 - correction_db), .area_m2 = 4.0}});
  for (std::size_t band = 0; band < kBandCount; ++band) {
    EXPECT_NEAR(SpectrumOf(corrected).reduction_index_db[band], SpectrumOf(lowered).reduction_index_db[band],
                1e-9);
  }
}

// Rw, C and Ctr by single numbers: only the first sum sees K, so the terms grow by what Rw loses.
TEST_P(CompositeElementClass, MovesRwAndLeavesTheSumsOfTheTermsAlone) {
  const auto [tightness_class, correction_db] = GetParam();
  FacadeComponent window{.part = FlatPart(40.0), .area_m2 = 4.0};
  window.part.c_db = -1.0;
  window.part.ctr_db = -4.0;
  CompositeElementInput input = Facade(60.0, {window});
  const CompositeRating plain = RatingOf(input);
  input.components[0].tightness_class = tightness_class;
  const CompositeRating rating = RatingOf(input);
  EXPECT_EQ(rating.rw_db, plain.rw_db - correction_db);
  EXPECT_EQ(rating.rw_db + rating.c_db, plain.rw_db + plain.c_db);
  EXPECT_EQ(rating.rw_db + rating.ctr_db, plain.rw_db + plain.ctr_db);
}

INSTANTIATE_TEST_SUITE_P(AirTightness, CompositeElementClass,
                         testing::Values(ClassCase{0, 0.0}, ClassCase{1, 8.0}, ClassCase{2, 6.0},
                                         ClassCase{3, 4.0}, ClassCase{4, 2.0}));

TEST(CompositeElement, KnowsNoOtherAirTightnessClass) {
  EXPECT_THROW(TightnessCorrection(5), std::out_of_range);
  EXPECT_THROW(TightnessCorrection(-1), std::out_of_range);
}

// Wall 7.5 m² of 50 (-2; -5), window 2.5 m² of 34 (-1; -4) in class 4, vent Dn,e,w 45 (0; -2):
//   Rw: 0.75 10^-5 + 0.25 10^-3.2 + 10^-4.5 = 1.96861e-4, 37.06, so 37
//   C:  0.75 10^-4.8 + 0.25 10^-3.3 + 10^-4.5 = 1.68809e-4, 37.73 - 37 = 0.73, so 1
//   Ctr: 0.75 10^-4.5 + 0.25 10^-3.0 + 10^-4.3 = 3.23836e-4, 34.90 - 37 = -2.10, so -2
TEST(CompositeElement, SimplifiedFormReproducesAHandComputation) {
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(34.0), .area_m2 = 2.5, .tightness_class = 4},
                                              {.part = FlatPart(45.0), .area_m2 = 0.0}});
  input.opaque.c_db = -2.0;
  input.opaque.ctr_db = -5.0;
  input.components[0].part.c_db = -1.0;
  input.components[0].part.ctr_db = -4.0;
  input.components[1].part.ctr_db = -2.0;
  const CompositeRating rating = RatingOf(input);
  EXPECT_EQ(rating.rw_db, 37.0);
  EXPECT_EQ(rating.c_db, 1.0);
  EXPECT_EQ(rating.ctr_db, -2.0);
}

// (200 x 7 + 25 x 2 + 40 x 1) / 10 = 149 kg/m²; the vent has no area and so no weight.
TEST(CompositeElement, GivesTheMeanSurfaceMassInBothForms) {
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(34.0, 25.0), .area_m2 = 2.0},
                                              {.part = FlatPart(30.0, 40.0), .area_m2 = 1.0},
                                              {.part = FlatPart(45.0, 900.0), .area_m2 = 0.0}});
  input.opaque.surface_mass_kg_m2 = 200.0;
  EXPECT_NEAR(SpectrumOf(input).surface_mass_kg_m2, 149.0, 1e-9);
  EXPECT_NEAR(RatingOf(input).surface_mass_kg_m2, 149.0, 1e-9);
}

struct AreaCase {
  const char* what;
  double area_m2;
  std::vector<double> component_areas_m2;
  bool refused;
};

class CompositeElementArea : public testing::TestWithParam<AreaCase> {};

TEST_P(CompositeElementArea, IsRefusedUnlessTheWallKeepsSome) {
  const AreaCase& areas = GetParam();
  CompositeElementInput input{.area_m2 = areas.area_m2, .opaque = FlatPart(50.0), .components = {}};
  for (const double area : areas.component_areas_m2) {
    input.components.push_back({.part = FlatPart(40.0), .area_m2 = area});
  }
  const std::vector<int> expected = areas.refused ? std::vector<int>{256} : std::vector<int>{};
  EXPECT_EQ(RefusedRows(input), expected) << areas.what;
  EXPECT_EQ(std::holds_alternative<CompositeRefusal>(CalculateCompositeRating(input)), areas.refused)
      << areas.what;
}

INSTANTIATE_TEST_SUITE_P(
    Areas, CompositeElementArea,
    testing::Values(AreaCase{"components fill the facade exactly", 10.0, {4.0, 6.0}, true},
                    AreaCase{"components larger than the facade", 10.0, {11.0}, true},
                    AreaCase{"a little wall is left", 10.0, {9.99}, false},
                    AreaCase{"no area at all", 0.0, {0.0}, true},
                    AreaCase{"no area, no component", 0.0, {}, true},
                    AreaCase{"an area that is no number", std::nan(""), {1.0}, true},
                    AreaCase{"signs are dropped", -10.0, {-4.0, -6.0}, true},
                    AreaCase{"signs are dropped, wall left", -10.0, {-4.0}, false}));

class CompositeElementMissingBand : public testing::TestWithParam<std::size_t> {};

TEST_P(CompositeElementMissingBand, IsRefusedInARatedBandAndLeavesZeroElsewhere) {
  const std::size_t band = GetParam();
  const bool rated = band >= acoustics::kFirstRatedBand && band <= acoustics::kLastRatedBand;
  for (const bool in_wall : {true, false}) {
    CompositeElementInput input = Facade(50.0, {{.part = FlatPart(30.0), .area_m2 = 2.0}});
    (in_wall ? input.opaque : input.components[0].part).bands_db[band] = 0.0;
    const std::vector<int> rows = RefusedRows(input);
    if (rated) {
      EXPECT_THAT(rows, testing::ElementsAre(257, 258, 259)) << band;
      continue;
    }
    ASSERT_TRUE(rows.empty()) << band;
    const CompositeSpectrum outcome = SpectrumOf(input);
    for (std::size_t other = 0; other < kBandCount; ++other) {
      EXPECT_NEAR(outcome.reduction_index_db[other], other == band ? 0.0 : 40.0 - 10.0 * std::log10(2.08),
                  1e-9);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Bands, CompositeElementMissingBand, testing::Range<std::size_t>(0, kBandCount));

TEST(CompositeElement, MissingBandsDoNotMatterToTheSimplifiedForm) {
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(30.0), .area_m2 = 2.0}});
  input.opaque.bands_db = {};
  EXPECT_EQ(RatingOf(input).rw_db, 37.0);  // 36.819
}

TEST(CompositeElement, DropsTheSignOfABandValue) {
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(30.0), .area_m2 = 2.0}});
  const CompositeSpectrum expected = SpectrumOf(input);
  input.components[0].part.bands_db = Flat(-30.0);
  EXPECT_EQ(SpectrumOf(input).reduction_index_db, expected.reduction_index_db);
}

TEST(CompositeElement, ATightPartChangesTheResultByItsAreaAlone) {
  for (const double infinite_db : {1e6, std::numeric_limits<double>::infinity()}) {
    const CompositeSpectrum outcome =
        SpectrumOf(Facade(45.0, {{.part = FlatPart(infinite_db), .area_m2 = 2.5}}));
    EXPECT_NEAR(outcome.reduction_index_db[10], 45.0 - 10.0 * std::log10(0.75), 1e-9);
  }
}

TEST(CompositeElement, EqualPartsGiveTheirOwnReductionIndex) {
  const CompositeSpectrum outcome = SpectrumOf(
      Facade(37.5, {{.part = FlatPart(37.5), .area_m2 = 3.3}, {.part = FlatPart(37.5), .area_m2 = 1.7}}));
  for (const double level : outcome.reduction_index_db) EXPECT_NEAR(level, 37.5, 1e-9);
}

TEST(CompositeElement, ShareOfAComponentIsInPercentOfTheWhole) {
  EXPECT_DOUBLE_EQ(ComponentSharePercent(2.5, 10.0).value(), 25.0);
  EXPECT_DOUBLE_EQ(ComponentSharePercent(0.0, 10.0).value(), 0.0);
  EXPECT_EQ(ComponentSharePercent(2.5, 0.0), std::nullopt);
  EXPECT_EQ(ComponentSharePercent(0.0, 0.0), std::nullopt);
}

TEST(CompositeElement, FailsWhenThePartsLetThroughNothing) {
  const CompositeElementInput input = Facade(1e6, {{.part = FlatPart(1e6), .area_m2 = 1.0}});
  EXPECT_THROW(CalculateCompositeSpectrum(input), ArithmeticFailure);
  try {
    CalculateCompositeRating(input);
    FAIL() << "the simplified form gave a rating";
  } catch (const ArithmeticFailure& failure) {
    ASSERT_EQ(failure.UserMessage().size(), 2u);
    EXPECT_EQ(LeadingRow(failure.UserMessage()[1]), kFacadeLevelsRow);
  }
}

/// A facade as anybody could type it, now and then with values that make no sense.
CompositeElementInput RandomFacade(std::mt19937& random) {
  std::uniform_real_distribution<double> level(0.5, 70.0);
  std::uniform_real_distribution<double> share(0.0, 1.0);
  const auto part = [&] {
    FacadePart made{.rating_db = level(random), .c_db = -share(random) * 3, .ctr_db = -share(random) * 9};
    for (double& band : made.bands_db) band = share(random) < 0.002 ? 0.0 : level(random);
    made.surface_mass_kg_m2 = 400.0 * share(random);
    return made;
  };
  CompositeElementInput input{
      .area_m2 = share(random) < 0.02 ? 0.0 : 1.0 + 30.0 * share(random), .opaque = part(), .components = {}};
  const int count = 1 + static_cast<int>(8.99 * share(random));
  for (int i = 0; i < count; ++i) {
    input.components.push_back({.part = part(),
                                .area_m2 = share(random) < 0.3 ? 0.0 : 5.0 * share(random),
                                .tightness_class = static_cast<int>(4.99 * share(random))});
  }
  return input;
}

TEST(CompositeElement, RandomFacadesGiveFiniteNumbersWhateverTheOrder) {
  std::mt19937 random(20240601);
  int calculated = 0;
  for (int run = 0; run < 5000; ++run) {
    CompositeElementInput input = RandomFacade(random);
    const auto outcome = CalculateCompositeSpectrum(input);
    const bool refused = std::holds_alternative<CompositeRefusal>(outcome);
    if (refused) continue;
    ++calculated;
    const CompositeSpectrum spectrum = std::get<CompositeSpectrum>(outcome);
    const CompositeRating rating = RatingOf(input);
    std::shuffle(input.components.begin(), input.components.end(), random);
    const CompositeSpectrum shuffled = SpectrumOf(input);
    for (std::size_t band = 0; band < kBandCount; ++band) {
      ASSERT_TRUE(std::isfinite(spectrum.reduction_index_db[band]));
      ASSERT_NEAR(spectrum.reduction_index_db[band], shuffled.reduction_index_db[band], 1e-9);
    }
    ASSERT_NEAR(spectrum.surface_mass_kg_m2, shuffled.surface_mass_kg_m2, 1e-9);
    ASSERT_EQ(rating.rw_db, RatingOf(input).rw_db);
    ASSERT_TRUE(std::isfinite(rating.c_db) && std::isfinite(rating.ctr_db));
    ASSERT_TRUE(std::isfinite(acoustics::FindShift(spectrum.reduction_index_db)));
  }
  EXPECT_GT(calculated, 1000);
}

// 8 m² of 50 dB and a window of 2 m² and 40 dB: 0,8 against 2 parts in a hundred thousand.
TEST(Shares, AreThoseOfAreaAndTransmission) {
  const CompositeElementInput input = Facade(50.0, {{.part = FlatPart(40.0), .area_m2 = 2.0}});
  for (const auto& shares : {SharesByBands(input), SharesByRating(input)}) {
    ASSERT_TRUE(shares);
    EXPECT_NEAR(shares->at(0), 0.8 / 2.8, 1e-12);
    EXPECT_NEAR(shares->at(1), 2.0 / 2.8, 1e-12);
  }
}

TEST(Shares, SeeTheTightnessAndTheSmallElements) {
  const CompositeElementInput input =
      Facade(50.0, {{.part = FlatPart(50.0), .area_m2 = 5.0, .tightness_class = 4},
                    {.part = FlatPart(50.0), .area_m2 = 0.0, .tightness_class = 1}});
  const auto shares = SharesByBands(input);
  ASSERT_TRUE(shares);
  EXPECT_NEAR(shares->at(1) / shares->at(0), std::pow(10.0, 0.2), 1e-12) << "2 dB of class 4";
  EXPECT_NEAR(shares->at(2) / shares->at(0), 2.0, 1e-12) << "10 m² against 5 m², and no class";
}

TEST(Shares, WeighTheBandsAsPinkNoise) {
  // The wall lets everything through at 100 Hz, the window everything at 1250 Hz, where A-weighted pink noise
  // has 20 dB more.
  CompositeElementInput input = Facade(200.0, {{.part = FlatPart(200.0), .area_m2 = 5.0}});
  input.opaque.bands_db[3] = 10.0;
  input.components[0].part.bands_db[14] = 10.0;
  const auto shares = SharesByBands(input);
  ASSERT_TRUE(shares);
  EXPECT_NEAR(shares->at(1) / shares->at(0), 100.0, 1e-9);
}

TEST(Shares, AreNothingWhereTheElementIsRefused) {
  EXPECT_FALSE(SharesByBands(Facade(50.0, {{.part = FlatPart(40.0), .area_m2 = 10.0}})));
  EXPECT_FALSE(SharesByRating(Facade(50.0, {{.part = FlatPart(40.0), .area_m2 = 10.0}})));
  CompositeElementInput input = Facade(50.0, {{.part = FlatPart(40.0), .area_m2 = 2.0}});
  input.opaque.bands_db[10] = 0.0;
  EXPECT_FALSE(SharesByBands(input));
}

}  // namespace
}  // namespace velmar::models
