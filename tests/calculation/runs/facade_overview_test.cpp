#include "calculation/runs/facade_overview.h"

#include <cmath>
#include <numeric>
#include <stdexcept>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "tests/support/random_setup.h"

namespace velmar::calculation {
namespace {

/// 20 m² of wall of 50 dB with windows of 36 dB, each 2 m².
elements::Setup Facade(int windows) {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kCompositeElement;
  setup.facade.simplified = true;
  setup.facade.count_text = std::to_string(windows);
  setup.base.area_text = "20";
  setup.base.rating_text = "50";
  for (int i = 0; i < windows; ++i) {
    elements::FacadeComponent& window = setup.facade.components.at(static_cast<std::size_t>(i));
    window.name = "F" + std::to_string(i + 1);
    window.area_text = "2";
    window.rating_text = "36";
    window.c_text = "-1";
    window.ctr_text = "-4";
  }
  return setup;
}

std::vector<std::string> Names(const elements::Setup& setup) {
  std::vector<std::string> names;
  for (int i = 0; i < setup.facade.Count(); ++i)
    names.push_back(setup.facade.components.at(static_cast<std::size_t>(i)).name);
  return names;
}

TEST(FacadeOverview, TellsWhatEachPartIs) {
  const auto rows = FacadeOverview(Facade(2));
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].area_m2, 16.0);
  EXPECT_EQ(rows[0].rating_db, 50.0);
  EXPECT_EQ(rows[0].c_db, std::nullopt) << "a blank box is no 0";
  EXPECT_EQ(rows[2].area_m2, 2.0);
  EXPECT_EQ(rows[2].ctr_db, -4.0);
  // 16 m² at 10^-5 and twice 2 m² at 10^-3,6.
  const double wall = 16.0 * 1e-5;
  const double window = 2.0 * std::pow(10.0, -3.6);
  EXPECT_NEAR(*rows[0].share_percent, 100.0 * wall / (wall + 2.0 * window), 1e-9);
  EXPECT_NEAR(*rows[1].share_percent, 100.0 * window / (wall + 2.0 * window), 1e-9);
}

TEST(FacadeOverview, CountsASmallElementWithTenSquareMetres) {
  elements::Setup setup = Facade(1);
  setup.facade.components[0].area_text = "-";
  setup.facade.components[0].tightness_class = 1;
  const auto rows = FacadeOverview(setup);
  EXPECT_EQ(rows[0].area_m2, 20.0);
  EXPECT_EQ(rows[1].area_m2, 0.0);
  const double wall = 20.0 * 1e-5;
  const double vent = 10.0 * std::pow(10.0, -3.6);
  EXPECT_NEAR(*rows[1].share_percent, 100.0 * vent / (wall + vent), 1e-9) << "no class for a small element";
}

TEST(FacadeOverview, RatesTheBandValuesInTheBandForm) {
  elements::Setup setup = Facade(1);
  setup.facade.simplified = false;
  // The reference curve of ISO 717-1 itself, at 52 dB: 33 dB at 100 Hz to 56 dB from 1250 Hz on.
  const std::vector<int> reference = {33, 36, 39, 42, 45, 48, 51, 52, 53, 54, 55, 56, 56, 56, 56, 56};
  for (std::size_t j = 0; j < reference.size(); ++j) {
    setup.base.band_texts.at(j + 3) = std::to_string(reference[j]);
    setup.facade.components[0].band_texts.at(j + 3) = std::to_string(reference[j] - 20);
  }
  const auto rows = FacadeOverview(setup);
  EXPECT_GE(*rows[0].rating_db, 52.0);
  EXPECT_EQ(*rows[0].rating_db - *rows[1].rating_db, 20.0);
  // 20 dB less in every band lets a hundred times as much through a square metre.
  EXPECT_NEAR(*rows[1].share_percent / *rows[0].share_percent, 100.0 * 2.0 / 18.0, 1e-9);
  setup.facade.components[0].band_texts.at(7) = "";
  const auto missing = FacadeOverview(setup);
  EXPECT_EQ(missing[1].rating_db, std::nullopt);
  EXPECT_EQ(missing[0].share_percent, std::nullopt) << "the facade cannot be summed up";
  EXPECT_TRUE(missing[0].rating_db);
}

TEST(FacadeOverview, LeavesCellsEmptyWhereAnythingIsMissing) {
  for (const char* text : {"", "-", ",", "x", "0", "-3", "1e300", "500"}) {
    elements::Setup setup = Facade(2);
    setup.base.area_text = text;
    for (const FacadeRow& row : FacadeOverview(setup)) {
      EXPECT_TRUE(!row.share_percent || std::isfinite(*row.share_percent)) << text;
    }
    setup = Facade(2);
    setup.facade.components[1].rating_text = text;
    for (const FacadeRow& row : FacadeOverview(setup)) {
      EXPECT_TRUE(!row.share_percent || std::isfinite(*row.share_percent)) << text;
    }
  }
}

TEST(FacadeOverview, SharesAddUpAndFollowTheResult) {
  tests::RandomSource random(11);
  int summed = 0;
  for (int i = 0; i < 200; ++i) {
    elements::Setup setup =
        tests::RandomSetup(elements::Calculation::kCompositeElement, tests::Wildness::kPlausible, random);
    const RunOutcome outcome = RunCalculation(setup, 0.0, [](const Message&) { return true; });
    const auto rows = FacadeOverview(setup);
    EXPECT_EQ(rows[0].share_percent.has_value(), outcome.result.has_value());
    if (!outcome.result) continue;
    double sum = 0.0;
    for (const FacadeRow& row : rows) sum += *row.share_percent;
    EXPECT_NEAR(sum, 100.0, 1e-9);
    ++summed;
  }
  EXPECT_GT(summed, 50);
}

TEST(Components, AreAddedDoubledMovedAndRemoved) {
  elements::Setup setup = Facade(3);
  setup.facade.components[3].name = "reserve";
  DuplicateComponent(setup, 2);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"F1", "F2", "F2", "F3"}));
  RemoveComponent(setup, 2);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"F1", "F2", "F3"}));
  MoveComponent(setup, 3, 1);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"F3", "F1", "F2"}));
  MoveComponent(setup, 1, 3);
  EXPECT_EQ(Names(setup), (std::vector<std::string>{"F1", "F2", "F3"}));
  EXPECT_EQ(setup.facade.count_text, "3");
}

TEST(Components, ComeBackFromTheReserve) {
  elements::Setup setup = Facade(3);
  const elements::Setup before = setup;
  RemoveComponent(setup, 3);
  AddComponent(setup);
  EXPECT_EQ(setup, before);
}

TEST(Components, AFurtherPartTakesTheEmptyOneFirst) {
  elements::Setup setup = Facade(1);
  EXPECT_EQ(FreeComponent(setup), 2);
  setup.facade.components[0] = {};
  setup.facade.components[0].tightness_class = 2;
  EXPECT_EQ(FreeComponent(setup), 1);
  setup.facade.components[0].area_text = "-";
  EXPECT_EQ(FreeComponent(setup), 2);
  EXPECT_EQ(FreeComponent(Facade(9)), std::nullopt);
}

TEST(Components, KeepTheLimitsOfTheirCount) {
  elements::Setup setup = Facade(1);
  EXPECT_THROW(RemoveComponent(setup, 1), std::out_of_range);
  while (CanAddComponent(setup)) AddComponent(setup);
  EXPECT_EQ(setup.facade.Count(), 9);
  EXPECT_THROW(AddComponent(setup), std::out_of_range);
  EXPECT_THROW(DuplicateComponent(setup, 4), std::out_of_range);
  EXPECT_THROW(MoveComponent(setup, 1, 10), std::out_of_range);
  setup.facade.count_text = "9 ";
  RemoveComponent(setup, 9);
  EXPECT_EQ(setup.facade.count_text, "8");
}

}  // namespace
}  // namespace velmar::calculation
