#include "models/monolithic/monolithic_element.h"

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace velmar::models {
namespace {

using acoustics::kBandCount;
using acoustics::Spectrum;

// The worked building of ISO 12354-1:2017, annex L, table L.3: total loss factors and reduction indices in
// situ.

const MonolithicElement kFloor{5.0, 4.0, 0.22, 2200, 3800, 0.005, 0};
const MonolithicElement kOuterWall{4.0, 2.75, 0.365, 600, 1900, 0.0125, 0};

constexpr Spectrum kFloorLosses = {0.0831, 0.0746, 0.0667, 0.0602, 0.0544, 0.0486, 0.0438,
                                   0.0394, 0.0355, 0.0319, 0.0290, 0.0263, 0.0239, 0.0218,
                                   0.0200, 0.0183, 0.0168, 0.0156, 0.0144, 0.0133, 0.0124};
constexpr Spectrum kFloorR = {31.8, 31.5, 35.9, 37.6, 39.1, 40.8, 43.3, 46.3, 49.2, 52.2, 54.9,
                              57.6, 60.4, 63.0, 65.6, 68.5, 71.1, 73.3, 73.0, 72.6, 72.3};
constexpr Spectrum kWallLosses = {0.1298, 0.1170, 0.1052, 0.0954, 0.0867, 0.0781, 0.0711,
                                  0.0646, 0.0585, 0.0530, 0.0485, 0.0444, 0.0407, 0.0376,
                                  0.0349, 0.0322, 0.0301, 0.0282, 0.0265, 0.0249, 0.0236};
constexpr Spectrum kWallR = {27.4, 28.2, 26.2, 32.8, 34.7, 36.4, 37.9, 40.3, 43.4, 46.4, 49.2,
                             52.0, 54.9, 57.6, 59.5, 59.2, 58.9, 58.6, 58.3, 58.0, 57.8};

MonolithicPrediction Predicted(const MonolithicElement& element, const MonolithicSituation& situation = {}) {
  return std::get<MonolithicPrediction>(PredictMonolithic(element, situation));
}

void ExpectTable(const MonolithicElement& element, double perimeter_absorption_m, const Spectrum& losses,
                 const Spectrum& reduction_index) {
  const MonolithicPrediction given = Predicted(element, {GivenLosses{losses}});
  const MonolithicPrediction found = Predicted(element, {InSituLosses{perimeter_absorption_m}});
  for (std::size_t band = 0; band < kBandCount; ++band) {
    EXPECT_NEAR(given.reduction_index_db[band], reduction_index[band], 0.08) << band;
    EXPECT_NEAR(found.reduction_index_db[band], reduction_index[band], 0.06) << band;
    EXPECT_NEAR(found.total_loss_factor[band], losses[band], 6e-5) << band;
  }
}

// The sums of l alpha follow from the annex's junctions: 2.659 m and 2.375 m.
TEST(MonolithicElement, ReproducesTheFloorOfTheWorkedBuilding) {
  ExpectTable(kFloor, 2.659, kFloorLosses, kFloorR);
  const MonolithicPrediction floor = Predicted(kFloor);
  EXPECT_DOUBLE_EQ(floor.surface_mass_kg_m2, 484.0);
  EXPECT_NEAR(floor.critical_frequency_hz, 76.8, 0.05);
}

TEST(MonolithicElement, ReproducesTheOuterWallOfTheWorkedBuilding) {
  ExpectTable(kOuterWall, 2.375, kWallLosses, kWallR);
  EXPECT_NEAR(Predicted(kOuterWall).critical_frequency_hz, 92.6, 0.05);
}

TEST(MonolithicElement, LosesToTheLaboratoryByItsMass) {
  const MonolithicPrediction floor = Predicted(kFloor);
  EXPECT_NEAR(floor.total_loss_factor[3], 0.005 + 484.0 / 4850.0, 1e-12);
  EXPECT_NEAR(floor.total_loss_factor[13], 0.005 + 484.0 / (485.0 * std::sqrt(1000.0)), 1e-12);
}

TEST(MonolithicElement, InsulatesMoreWithMoreLossesAndCoating) {
  MonolithicElement plastered = kOuterWall;
  plastered.coating_mass_kg_m2 = 30;
  const Spectrum bare = Predicted(kOuterWall).reduction_index_db;
  const Spectrum coated = Predicted(plastered).reduction_index_db;
  EXPECT_NEAR(coated[10] - bare[10], 20 * std::log10(249.0 / 219.0) + 0.45, 0.15);
  GivenLosses twice{kWallLosses};
  for (double& eta : twice.total_loss_factor) eta *= 2;
  const Spectrum damped = Predicted(kOuterWall, {twice}).reduction_index_db;
  const Spectrum once = Predicted(kOuterWall, {GivenLosses{kWallLosses}}).reduction_index_db;
  for (std::size_t band = 4; band < kBandCount; ++band) {
    EXPECT_NEAR(damped[band] - once[band], 10 * std::log10(2.0), 1e-9) << band;
  }
}

TEST(MonolithicElement, LeavesForcedWavesOutForFlankingPaths) {
  const MonolithicElement light{4.0, 2.75, 0.07, 800, 1900, 0.01, 0};  // fc 483 Hz
  MonolithicSituation flanking;
  flanking.resonant_only = true;
  const Spectrum all = Predicted(light).reduction_index_db;
  const Spectrum resonant = Predicted(light, flanking).reduction_index_db;
  for (std::size_t band = 0; band < kBandCount; ++band) {
    if (band < 9) {
      EXPECT_GT(resonant[band], all[band] + 0.5) << band;
    } else if (band > 10) {
      EXPECT_DOUBLE_EQ(resonant[band], all[band]) << band;
    }
  }
}

TEST(MonolithicElement, RaisesTheCriticalFrequencyOfThickWalls) {
  // x = 4.05·0.365·500/1900 = 0.389; fp = 1900/(5.5·0.365) = 946 Hz.
  EXPECT_NEAR(EffectiveCriticalFrequency(500, 92.6, 0.365, 1900), 92.6 * (0.38901 + std::sqrt(1.15133)),
              0.01);
  EXPECT_NEAR(EffectiveCriticalFrequency(2000, 92.6, 0.365, 1900), 2 * 92.6 * std::pow(2000 / 946.45, 3),
              0.5);
  EXPECT_NEAR(EffectiveCriticalFrequency(50, 92.6, 0.01, 1900), 92.6, 0.11);
  const Spectrum plain = Predicted(kOuterWall).reduction_index_db;
  const Spectrum risen =
      Predicted(kOuterWall, {LaboratoryLosses{}, ThickWallForm::kEffectiveCriticalFrequency})
          .reduction_index_db;
  EXPECT_NEAR(plain[10] - risen[10], 10 * std::log10(0.38901 + std::sqrt(1.15133)), 0.01);
  EXPECT_GT(plain[14], risen[14]);
}

TEST(MonolithicElement, RefusesHostileValuesWithTheirField) {
  using Value = std::function<double&(MonolithicElement&)>;
  const std::vector<std::pair<MonolithicField, Value>> fields = {
      {MonolithicField::kLength1, [](MonolithicElement& e) -> double& { return e.length1_m; }},
      {MonolithicField::kLength2, [](MonolithicElement& e) -> double& { return e.length2_m; }},
      {MonolithicField::kThickness, [](MonolithicElement& e) -> double& { return e.thickness_m; }},
      {MonolithicField::kDensity, [](MonolithicElement& e) -> double& { return e.density_kg_m3; }},
      {MonolithicField::kLongitudinalSpeed,
       [](MonolithicElement& e) -> double& { return e.longitudinal_speed_m_s; }},
      {MonolithicField::kInternalLossFactor,
       [](MonolithicElement& e) -> double& { return e.internal_loss_factor; }},
      {MonolithicField::kCoatingMass, [](MonolithicElement& e) -> double& { return e.coating_mass_kg_m2; }}};
  for (const auto& [field, value] : fields) {
    for (const double hostile :
         {-1.0, 1e30, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
      MonolithicElement element = kFloor;
      value(element) = hostile;
      const MonolithicOutcome outcome = PredictMonolithic(element);
      ASSERT_TRUE(std::holds_alternative<MonolithicRefusal>(outcome)) << static_cast<int>(field) << hostile;
      EXPECT_EQ(std::get<MonolithicRefusal>(outcome).field, field);
    }
    if (field == MonolithicField::kCoatingMass) continue;
    MonolithicElement element = kFloor;
    value(element) = 0.0;
    EXPECT_EQ(std::get<MonolithicRefusal>(PredictMonolithic(element)).field, field);
  }
  GivenLosses losses{kFloorLosses};
  losses.total_loss_factor[7] = 0.0;
  EXPECT_EQ(std::get<MonolithicRefusal>(PredictMonolithic(kFloor, {losses})).field,
            MonolithicField::kTotalLossFactor);
  EXPECT_EQ(std::get<MonolithicRefusal>(PredictMonolithic(kFloor, {InSituLosses{-1.0}})).field,
            MonolithicField::kPerimeterAbsorption);
}

TEST(MonolithicElement, IsFiniteAtTheLimitsOfItsRanges) {
  for (const double l : {0.1, 100.0}) {
    for (const double t : {0.001, 5.0}) {
      for (const double density : {10.0, 30000.0}) {
        for (const double speed : {100.0, 10000.0}) {
          for (const ThickWallForm form :
               {ThickWallForm::kPlateau, ThickWallForm::kEffectiveCriticalFrequency}) {
            const MonolithicElement element{l, 0.1, t, density, speed, 1e-4, 0};
            for (const double r : Predicted(element, {LaboratoryLosses{}, form}).reduction_index_db) {
              ASSERT_TRUE(std::isfinite(r) && r >= 0.0);
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace velmar::models
