#include "models/sea/lining_checks.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/models/sea/constructions.h"

namespace velmar::models {
namespace {

MessageRow Row(int number) { return MessageRow{number}; }

const MessageLine kOpening{Row(231), ":"};

LiningInput Sound(LiningVariant variant) {
  LiningInput input{
      .variant = variant,
      .base_rw_db = 50.0F,
      .base_mass_kg_m2 = 230.0F,
      .layers = {Plasterboard(), {}, {}},
      .cavity = {.type = SeaCavityType::kFibre, .depth_mm = 60, .fills = {MineralWool(), {}, {}}},
      .support_distance = 60.0};
  input.base_spectrum_db.fill(45.0);
  return input;
}

struct CheckCase {
  const char* name = "";
  LiningVariant variant{};
  void (*spoil)(LiningInput&) = nullptr;
  Message expected{};
};
class LiningCheck : public testing::TestWithParam<CheckCase> {};

TEST_P(LiningCheck, SaysWhatIsMissing) {
  LiningInput input = Sound(GetParam().variant);
  EXPECT_TRUE(CheckLining(input).empty());
  GetParam().spoil(input);
  Message expected = GetParam().expected;
  expected.insert(expected.begin(), kOpening);
  EXPECT_EQ(CheckLining(input), expected);
}

using V = LiningVariant;
void NoBaseMass(LiningInput& in) { in.base_mass_kg_m2 = 0.0F; }
void NoBaseRw(LiningInput& in) { in.base_rw_db.reset(); }
void ZeroBaseRw(LiningInput& in) { in.base_rw_db = 0.0F; }
void NoLayers(LiningInput& in) {
  in.layers = {};
  in.cavity.type = SeaCavityType::kEmpty;
}

INSTANTIATE_TEST_SUITE_P(
    EnergyBalance, LiningCheck,
    testing::Values(CheckCase{"base_mass_of_wall",
                              V::kDirectLining,
                              NoBaseMass,
                              {{"- ", Row(244), " ", Row(237), " ", "assente o non valida"}}},
                    CheckCase{"base_mass_of_floor",
                              V::kCeiling,
                              NoBaseMass,
                              {{"- ", Row(244), " ", Row(238), " ", "assente o non valida"}}},
                    CheckCase{"depth_of_1_mm",
                              V::kDirectLining,
                              [](LiningInput& in) { in.cavity.depth_mm = 1.0; },
                              {{"- ", Row(245)}}},
                    CheckCase{"no_100_hz",
                              V::kDirectLining,
                              [](LiningInput& in) { in.base_spectrum_db[3].reset(); },
                              {{"- ", Row(246)}}},
                    CheckCase{"no_spectrum_is_one_line",
                              V::kDirectLining,
                              [](LiningInput& in) { in.base_spectrum_db = {}; },
                              {{"- ", Row(246)}}},
                    CheckCase{"absorption",
                              V::kDirectLining,
                              [](LiningInput& in) { in.cavity.fills[0]->absorption[7] = kNoAbsorption; },
                              {{"- ", Row(247), " ", "Lana minerale"}}},
                    CheckCase{"base_rw_blank", V::kDirectLining, NoBaseRw, {{"- ", Row(248)}}},
                    CheckCase{"base_rw_zero", V::kDirectLining, ZeroBaseRw, {{"- ", Row(249)}}},
                    CheckCase{"support_distance",
                              V::kFramedLining,
                              [](LiningInput& in) { in.support_distance.reset(); },
                              {{"- ", Row(251)}}},
                    CheckCase{
                        "hanger", V::kCeiling, [](LiningInput& in) { in.hanger = 3; }, {{"- ", Row(250)}}},
                    CheckCase{"all_at_once",
                              V::kFramedLining,
                              [](LiningInput& in) {
                                const SeaCavity cavity = in.cavity;
                                in = LiningInput{.variant = V::kFramedLining, .cavity = cavity};
                                in.cavity.depth_mm = 0.0;
                                in.cavity.fills[0]->absorption.fill(kNoAbsorption);
                              },
                              {{"- ", Row(244), " ", Row(237), " ", "assente o non valida"},
                               {"- ", Row(245)},
                               {"- ", Row(246)},
                               {"- ", Row(247), " ", "Lana minerale"},
                               {"- ", Row(248)},
                               {"- ", Row(251)}}}),
    [](const auto& test) { return std::string(test.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Generic, LiningCheck,
    testing::Values(
        CheckCase{"base_mass", V::kGenericLining, NoBaseMass, {{"- ", Row(234)}}},
        CheckCase{
            "mass_of_lining", V::kGenericLining, NoLayers, {{"- ", Row(235), " ", Row(237), " ", Row(243)}}},
        CheckCase{"mass_of_ceiling",
                  V::kGenericCeiling,
                  NoLayers,
                  {{"- ", Row(235), " ", Row(238), " ", Row(243)}}},
        CheckCase{"base_rw_blank_of_wall", V::kGenericLining, NoBaseRw, {{"- ", Row(236), Row(239)}}},
        CheckCase{"base_rw_blank_of_floor", V::kGenericCeiling, NoBaseRw, {{"- ", Row(236), Row(240)}}},
        CheckCase{"base_rw_zero_of_wall", V::kGenericLining, ZeroBaseRw, {{"- ", Row(236), Row(241)}}},
        CheckCase{"base_rw_zero_of_floor", V::kGenericCeiling, ZeroBaseRw, {{"- ", Row(236), Row(242)}}},
        CheckCase{
            "all_at_once",
            V::kGenericCeiling,
            [](LiningInput& in) { in = LiningInput{.variant = V::kGenericCeiling}; },
            {{"- ", Row(234)}, {"- ", Row(235), " ", Row(238), " ", Row(243)}, {"- ", Row(236), Row(240)}}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(LiningCheck, DoesNotAskAGenericVariantForASpectrumOrAnAbsorption) {
  LiningInput input = Sound(V::kGenericLining);
  input.base_spectrum_db = {};
  input.cavity.fills[0]->absorption.fill(kNoAbsorption);
  EXPECT_TRUE(CheckLining(input).empty());
}

TEST(CheckLiningDepth, AsksForADepthWhenThereIsNothing) {
  EXPECT_EQ(CheckLiningDepth(std::nullopt), (Message{kOpening, {"- ", Row(233)}}));
  EXPECT_TRUE(CheckLiningDepth(0.0).empty());
}

}  // namespace
}  // namespace velmar::models
