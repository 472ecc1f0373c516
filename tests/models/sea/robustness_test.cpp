#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "foundation/failure.h"
#include "models/sea/lining_checks.h"
#include "models/sea/lining_rating.h"
#include "tests/models/sea/random_elements.h"

// Whatever a project file may hold: a finite result, a refusal, or a failure that says so.
namespace velmar::models {
namespace {

/// Spoils single values of otherwise sensible constructions.
class Spoiler {
 public:
  explicit Spoiler(unsigned seed) : random_(seed) {}

  void Touch(double& value) {
    constexpr std::array<double, 11> kBad = {0.0,
                                             -1.0,
                                             1.0,
                                             1e-300,
                                             1e300,
                                             -1e-9,
                                             1e-30,
                                             1e30,
                                             6000.0,
                                             std::numeric_limits<double>::infinity(),
                                             std::numeric_limits<double>::quiet_NaN()};
    if (random_.Happens(0.03)) value = kBad[static_cast<std::size_t>(random_.Whole(0, 10))];
  }
  void Touch(SeaDampingSheet& sheet) {
    Touch(sheet.thickness_mm);
    Touch(sheet.density_kg_m3);
    Touch(sheet.youngs_modulus_gpa);
  }
  void Touch(SeaSide& side) {
    for (auto& layer : side) {
      if (random_.Happens(0.1)) layer.reset();
      if (!layer) continue;
      for (double* value : {&layer->thickness_mm, &layer->density_kg_m3, &layer->youngs_modulus_gpa,
                            &layer->loss_factor, &layer->poissons_ratio}) {
        Touch(*value);
      }
      for (auto& sheet : layer->damping) {
        if (sheet) Touch(*sheet);
      }
    }
  }
  void Touch(SeaCavity& cavity) {
    Touch(cavity.depth_mm);
    for (auto& fill : cavity.fills) {
      if (!fill) continue;
      Touch(fill->thickness_mm);
      Touch(fill->density_kg_m3);
      for (double& band : fill->absorption) Touch(band);
    }
    for (auto& mass : cavity.masses) {
      if (!mass) continue;
      for (double* value : {&mass->thickness_mm, &mass->density_kg_m3, &mass->youngs_modulus_gpa,
                            &mass->loss_factor, &mass->poissons_ratio}) {
        Touch(*value);
      }
    }
  }
  void Touch(SeaElementSize& size) {
    Touch(size.length_a_m);
    Touch(size.length_b_m);
  }

 private:
  RandomElements random_;
};

bool IsFinite(const acoustics::Spectrum& spectrum) {
  return std::all_of(spectrum.begin(), spectrum.end(), [](double level) { return std::isfinite(level); });
}

bool IsFinite(const SeaWallOutcome& outcome) {
  return IsFinite(outcome.reduction_index_db) && std::isfinite(outcome.critical_frequency_hz) &&
         std::isfinite(outcome.surface_mass_kg_m2) && std::isfinite(outcome.loss_factor);
}

struct Tally {
  int finite = 0;
  int failed = 0;
};

template <typename Calculation>
void Count(Tally& tally, Calculation calculation) {
  try {
    ASSERT_TRUE(calculation()) << "a result that is not finite";
    ++tally.finite;
  } catch (const ArithmeticFailure&) {
    ++tally.failed;
  }
}

/// Both ways must be met often, else the spoiling does not test anything.
void ExpectBoth(const Tally& tally) {
  EXPECT_GT(tally.finite, 100);
  EXPECT_GT(tally.failed, 100);
}

TEST(Robustness, SingleWallsGiveAFiniteResultOrFail) {
  RandomElements random(11);
  Spoiler spoiler(12);
  Tally tally;
  for (int i = 0; i < 3000; ++i) {
    SingleSeaWallInput input = random.Single();
    spoiler.Touch(input.size);
    spoiler.Touch(input.total_thickness_mm);
    spoiler.Touch(input.layers);
    Count(tally, [&] { return IsFinite(CalculateSingleSeaWall(input)); });
  }
  ExpectBoth(tally);
}

TEST(Robustness, DoubleWallsGiveAFiniteResultOrARefusalOrFail) {
  RandomElements random(13);
  Spoiler spoiler(14);
  Tally tally;
  for (int i = 0; i < 1500; ++i) {
    DoubleSeaWallInput input = random.Double();
    spoiler.Touch(input.size);
    spoiler.Touch(input.first_side);
    spoiler.Touch(input.second_side);
    spoiler.Touch(input.cavity);
    spoiler.Touch(*input.connection.count);
    if (!CheckDoubleSeaWall(input).empty()) continue;
    Count(tally, [&] { return IsFinite(CalculateDoubleSeaWall(input)); });
  }
  ExpectBoth(tally);
}

TEST(Robustness, LiningsGiveAFiniteRatingOrARefusalOrFail) {
  RandomElements random(15);
  Spoiler spoiler(16);
  Tally tally;
  for (int i = 0; i < 1500; ++i) {
    LiningInput input = random.Lining();
    spoiler.Touch(input.layers);
    spoiler.Touch(input.cavity);
    for (auto& level : input.base_spectrum_db) {
      if (level) spoiler.Touch(*level);
    }
    if (!CheckLining(input).empty()) continue;
    Count(tally, [&] {
      const LiningOutcome outcome = CalculateLining(input);
      const LiningRating rating = RateLining(outcome.reduction_index_db, *input.base_rw_db);
      return IsFinite(outcome.reduction_index_db) && std::isfinite(rating.rw) && std::isfinite(rating.c);
    });
  }
  ExpectBoth(tally);
}

}  // namespace
}  // namespace velmar::models
