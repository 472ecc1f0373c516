#include "calculation/edits/facade_parts.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "elements/catalogue.h"

namespace velmar::calculation {
namespace {

/// A part whose bands climb from `lowest` by 1.25 dB a band.
FacadePart Part(const std::string& name, double lowest) {
  FacadePart part;
  part.name = name;
  part.description = name + ", descrizione";
  part.rating_db = lowest + 15;
  part.c_db = -1;
  part.ctr_db = -4;
  part.area_m2 = 1.5;
  part.mass_kg_m2 = 30.25;
  part.thickness_mm = 115;
  for (std::size_t i = 0; i < part.bands_db.size(); ++i)
    part.bands_db[i] = lowest + 1.25 * static_cast<double>(i);
  return part;
}

FacadePart Measured(const std::string& name, double lowest) {
  FacadePart part = Part(name, lowest);
  part.origin = PartOrigin::kMeasurement;
  return part;
}

FacadePart SmallElement() {
  FacadePart part = Measured("presa d'aria", 30);
  part.quantity = PartQuantity::kElementDifference;
  part.area_m2 = 0.0;
  return part;
}

elements::Setup EmptyFacade() {
  elements::Setup setup;
  setup.calculation = elements::Calculation::kCompositeElement;
  setup.base.area_text = "10,8";
  setup.facade.count_text = "3";
  return setup;
}

elements::BandTexts TypedBands(double lowest) {
  elements::BandTexts texts;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const int hundredths = static_cast<int>(lowest * 100) + 125 * static_cast<int>(i);
    const std::string decimals = std::to_string(100 + hundredths % 100).substr(1);
    texts[i] = std::to_string(hundredths / 100) + "," + decimals;
  }
  return texts;
}

TEST(FacadePartsTest, AFacadeOfTakenPartsRunsAsTheSameFacadeTypedByHand) {
  elements::Setup taken = EmptyFacade();
  TakeAsOpaquePart(taken, Part("muro", 35));
  TakeAsComponent(taken, 1, Measured("finestra grande", 22));
  TakeAsComponent(taken, 2, Measured("finestra piccola", 25));
  TakeAsComponent(taken, 3, SmallElement());

  elements::Setup typed = EmptyFacade();
  typed.base.band_texts = TypedBands(35);
  typed.base.mass_kg_m2 = 30.25F;
  const double lowest[] = {22, 25, 30};
  const char* areas[] = {"1,5", "1.5", "-"};
  for (std::size_t i = 0; i < 3; ++i) {
    typed.facade.components[i].band_texts = TypedBands(lowest[i]);
    typed.facade.components[i].area_text = areas[i];
    typed.facade.components[i].mass_kg_m2 = 30.25F;
  }

  const RunOutcome outcome = RunCalculation(taken, 0.0, {});
  ASSERT_EQ(outcome.status, RunStatus::kDone);
  EXPECT_EQ(outcome.result, RunCalculation(typed, 0.0, {}).result);
}

TEST(FacadePartsTest, TheSimplifiedFormReadsTheTakenSingleNumbers) {
  elements::Setup taken = EmptyFacade();
  taken.facade.simplified = true;
  taken.facade.count_text = "1";
  TakeAsOpaquePart(taken, Part("muro", 35));
  TakeAsComponent(taken, 1, Measured("finestra", 22));

  elements::Setup typed = EmptyFacade();
  typed.facade.simplified = true;
  typed.facade.count_text = "1";
  typed.base.rating_text = "50";
  typed.base.c_text = "-1";
  typed.base.ctr_text = "-4";
  typed.base.mass_kg_m2 = 30.25F;
  typed.facade.components[0].rating_text = "37";
  typed.facade.components[0].c_text = "-1";
  typed.facade.components[0].ctr_text = "-4";
  typed.facade.components[0].area_text = "1,5";
  typed.facade.components[0].mass_kg_m2 = 30.25F;

  const RunOutcome outcome = RunCalculation(taken, 0.0, {});
  ASSERT_EQ(outcome.status, RunStatus::kDone);
  EXPECT_EQ(outcome.result, RunCalculation(typed, 0.0, {}).result);
}

TEST(FacadePartsTest, ASmallElementHasNoAreaWhateverItsRecordSays) {
  elements::Setup setup = EmptyFacade();
  TakeAsComponent(setup, 9, SmallElement());
  EXPECT_EQ(setup.facade.components[8].area_text, elements::kSmallElementArea);
}

TEST(FacadePartsTest, AWindowAfterASmallElementLosesTheMarkOfTheSmallElement) {
  elements::Setup setup = EmptyFacade();
  TakeAsComponent(setup, 1, SmallElement());
  FacadePart window = Measured("finestra", 22);
  window.area_m2.reset();
  TakeAsComponent(setup, 1, window);
  EXPECT_EQ(setup.facade.components[0].area_text, "");
}

TEST(FacadePartsTest, APartWithoutAnAreaLeavesTheTypedOne) {
  elements::Setup setup = EmptyFacade();
  setup.facade.components[0].area_text = "2,4";
  FacadePart part = Measured("finestra", 22);
  part.area_m2.reset();
  TakeAsComponent(setup, 1, part);
  TakeAsOpaquePart(setup, part);
  EXPECT_EQ(setup.facade.components[0].area_text, "2,4");
  EXPECT_EQ(setup.base.area_text, "10,8");
}

TEST(FacadePartsTest, NoOpaquePartBringsTheAreaOfTheFacade) {
  elements::Setup setup = EmptyFacade();
  TakeAsOpaquePart(setup, Part("calcolata", 35));
  EXPECT_EQ(setup.base.area_text, "10,8");
  TakeAsOpaquePart(setup, Measured("misurata", 35));
  EXPECT_EQ(setup.base.area_text, "10,8");
  setup.base.area_text.clear();
  TakeAsOpaquePart(setup, Measured("misurata", 35));
  EXPECT_EQ(setup.base.area_text, "");
}

TEST(FacadePartsTest, AMeasurementBringsTheAreaOfALiningsBase) {
  elements::Setup setup;
  setup.base.area_text = "10,8";
  TakeAsLiningBase(setup, Part("calcolata", 35));
  EXPECT_EQ(setup.base.area_text, "10,8");
  TakeAsLiningBase(setup, Measured("misurata", 35));
  EXPECT_EQ(setup.base.area_text, "1,5");
}

TEST(FacadePartsTest, WhatAPartLacksEmptiesItsBoxes) {
  elements::Setup setup = EmptyFacade();
  TakeAsOpaquePart(setup, Part("muro", 35));
  FacadePart bare;
  bare.name = "senza dati";
  bare.bands_db[10] = 41.5;
  TakeAsOpaquePart(setup, bare);
  EXPECT_EQ(setup.base.name, "senza dati");
  EXPECT_EQ(setup.base.rating_text + setup.base.c_text + setup.base.ctr_text, "");
  EXPECT_EQ(setup.base.band_texts[9], "");
  EXPECT_EQ(setup.base.band_texts[10], "41,5");
  EXPECT_EQ(setup.base.mass_kg_m2, 0.0F);
}

TEST(FacadePartsTest, AMissingBandIsRefusedByTheRunAndNotFilledIn) {
  elements::Setup setup = EmptyFacade();
  setup.facade.count_text = "1";
  FacadePart wall = Part("muro", 35);
  wall.bands_db[5].reset();
  TakeAsOpaquePart(setup, wall);
  TakeAsComponent(setup, 1, Measured("finestra", 22));
  EXPECT_EQ(RunCalculation(setup, 0.0, {}).status, RunStatus::kRefused);
}

TEST(FacadePartsTest, ABandWrittenAsMinusOneWasNotMeasured) {
  elements::Setup setup = EmptyFacade();
  FacadePart wall = Part("muro", 35);
  wall.bands_db[0] = kNotMeasuredDb;
  TakeAsOpaquePart(setup, wall);
  EXPECT_EQ(setup.base.band_texts[0], "");
  EXPECT_EQ(setup.base.band_texts[1], "36,25");
}

TEST(FacadePartsTest, TheBaseOfALiningTakesTheThickness) {
  elements::Setup setup;
  TakeAsLiningBase(setup, Part("muro", 35));
  EXPECT_EQ(setup.base.thickness_mm, 115.0);
  TakeAsLiningBase(setup, FacadePart{});
  EXPECT_EQ(setup.base.thickness_mm, 0.0);
}

TEST(FacadePartsTest, ThereAreNineComponents) {
  elements::Setup setup = EmptyFacade();
  EXPECT_THROW(TakeAsComponent(setup, 0, FacadePart{}), std::out_of_range);
  EXPECT_THROW(TakeAsComponent(setup, 10, FacadePart{}), std::out_of_range);
}

}  // namespace
}  // namespace velmar::calculation
