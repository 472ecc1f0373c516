#include "storage/results/result_to_save.h"

#include <gtest/gtest.h>

namespace velmar::storage {
namespace {

using elements::Calculation;

elements::Setup SetupOf(Calculation calculation) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.width_text = "4";
  setup.height_text = "2.5";
  setup.base.area_text = "12,5";
  return setup;
}

elements::ResultSet Airborne() {
  elements::ResultSet result;
  result.spectrum.emplace().fill(40.0);
  result.rw = 45;
  result.c = -1;
  result.ctr = -4;
  result.delta_rw = 9;
  result.mass_kg_m2 = 30.0;
  return result;
}

const ResultHeading kHeading{"nome", "descrizione", 120.0, 96.0};

TEST(ResultToSave, OfAWallHasItsOwnAreaAndMass) {
  const SavedResult row = ResultToSave(SetupOf(Calculation::kSingleWallBrick), Airborne(), kHeading);
  EXPECT_EQ(row.rating, 45.0);
  EXPECT_EQ(row.area_m2, 10.0);
  EXPECT_EQ(row.thickness_mm, 120.0);
  EXPECT_EQ(row.mass_kg_m2, 96.0);
  EXPECT_EQ(row.other_adaptation, -4.0);
  EXPECT_EQ(row.picture, "senza");
}

TEST(ResultToSave, OfALiningHasAnAreaOnlyWhenItsBaseHasARating) {
  elements::Setup setup = SetupOf(Calculation::kLiningGeneric);
  EXPECT_EQ(ResultToSave(setup, Airborne(), kHeading).area_m2, std::nullopt);
  setup.base.rating_text = "40";
  EXPECT_EQ(ResultToSave(setup, Airborne(), kHeading).area_m2, 12.5);
  EXPECT_EQ(ResultToSave(setup, Airborne(), kHeading).rating, 9.0);
}

TEST(ResultToSave, OfAFacadeHasItsOwnMassAndNoBandOfZero) {
  elements::ResultSet result = Airborne();
  (*result.spectrum)[2] = 0.0;
  ResultHeading heading = kHeading;
  heading.description.assign(300, 'x');
  const SavedResult row = ResultToSave(SetupOf(Calculation::kCompositeElement), result, heading);
  EXPECT_EQ(row.mass_kg_m2, 30.0);
  EXPECT_EQ(row.area_m2, 12.5);
  EXPECT_EQ(row.bands[2], std::nullopt);
  EXPECT_EQ(row.bands[3], 40.0);
  EXPECT_EQ(row.description.substr(247), "...");
}

TEST(ResultToSave, OfAFloorHasItsImpactRating) {
  elements::ResultSet result;
  result.spectrum.emplace().fill(0.0);
  result.lnw = 74;
  result.ci = -10;
  const SavedResult row = ResultToSave(SetupOf(Calculation::kImpactReinforcedConcrete), result, kHeading);
  EXPECT_EQ(row.rating, 74.0);
  EXPECT_EQ(row.adaptation, -10.0);
  EXPECT_EQ(row.bands[0], 0.0) << "only a facade means nothing by 0";
}

// The reference floor of ISO 717-2, 78(-11) dB, with 80 dB at 63 Hz: 18 bands sum to 84,3 dB.
TEST(ResultToSave, OfAFloorHasTheTermDownTo50Hz) {
  elements::ResultSet result;
  result.spectrum = {60, 80,   60, 67, 67.5, 68, 68.5, 69, 69.5, 70, 70.5,
                     71, 71.5, 72, 72, 72,   72, 72,   72, 72,   72};
  result.lnw = 78;
  result.ci = -10;
  const SavedResult row = ResultToSave(SetupOf(Calculation::kImpactReinforcedConcrete), result, kHeading);
  EXPECT_EQ(row.adaptation, -10.0);
  EXPECT_EQ(row.other_adaptation, -9.0);
}

TEST(TableFor, SortsTheFamilies) {
  using elements::Family;
  for (const Family family : {Family::kSingle, Family::kSeaSingle, Family::kDouble, Family::kSharp,
                              Family::kSea, Family::kFacade}) {
    EXPECT_EQ(TableFor(family), ResultTable::kAirborne);
  }
  EXPECT_EQ(TableFor(Family::kImpact), ResultTable::kImpact);
  EXPECT_EQ(TableFor(Family::kLining), ResultTable::kLining);
  EXPECT_EQ(TableFor(Family::kCeiling), ResultTable::kLining);
}

}  // namespace
}  // namespace velmar::storage
