#include "calculation/runs/refusals.h"

#include <functional>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "elements/layer_groups.h"
#include "tests/support/random_setup.h"

namespace velmar::calculation {
namespace {

using elements::Calculation;
using elements::Field;
using elements::FieldId;
using elements::LayerGroup;

RunOutcome Outcome(elements::Setup setup) {
  PrepareRun(setup);
  return RunCalculation(setup, 0.0, [](const Message&) { return true; });
}

/// A construction of `calculation` that comes to a result.
elements::Setup Plausible(Calculation calculation) {
  tests::RandomSource random(4);
  return tests::RandomSetup(calculation, tests::Wildness::kPlausible, random);
}

struct Impossible {
  const char* name{};
  Calculation calculation{};
  std::function<void(elements::Setup&)> spoil{};
  FieldId field{};
  int rule = 0;
};
void PrintTo(const Impossible& impossible, std::ostream* out) { *out << impossible.name; }

class ImpossibleLayers : public testing::TestWithParam<Impossible> {};

TEST_P(ImpossibleLayers, AreToldWithTheirFieldAndNotCalculated) {
  elements::Setup setup = Plausible(GetParam().calculation);
  ASSERT_EQ(Outcome(setup).status, RunStatus::kDone);
  GetParam().spoil(setup);
  const RunOutcome outcome = Outcome(setup);
  EXPECT_EQ(outcome.status, RunStatus::kRefused);
  EXPECT_FALSE(outcome.result);
  ASSERT_TRUE(outcome.refusal);
  EXPECT_EQ(outcome.refusal->field, GetParam().field);
  EXPECT_EQ(outcome.refusal->reason.front(), MessagePiece(MessageRow{1860}));
  EXPECT_EQ(outcome.refusal->reason.back(), MessagePiece(MessageRow{GetParam().rule}));
}

INSTANTIATE_TEST_SUITE_P(
    Values, ImpossibleLayers,
    testing::Values(
        Impossible{"Thickness",
                   Calculation::kSingleWallGeneric,
                   [](elements::Setup& setup) { setup.leaf1.rows[0].slot.thickness_mm = -50; },
                   {Field::kThickness, LayerGroup::kLeaf1, 0},
                   1868},
        Impossible{"Density",
                   Calculation::kDoubleWallGeneric,
                   [](elements::Setup& setup) { setup.leaf2.rows[0].slot.density_kg_m3 = -1; },
                   {Field::kDensity, LayerGroup::kLeaf2, 0},
                   1868},
        Impossible{"YoungsModulus",
                   Calculation::kLightWallLineLine,
                   [](elements::Setup& setup) { setup.leaf1.rows[0].slot.youngs_modulus_gpa = -5; },
                   {Field::kYoungsModulus, LayerGroup::kLeaf1, 0},
                   1868},
        Impossible{"LossFactorAboveOne",
                   Calculation::kImpactReinforcedConcrete,
                   [](elements::Setup& setup) { setup.leaf1.rows[0].slot.loss_factor = 1.1; },
                   {Field::kLossFactor, LayerGroup::kLeaf1, 0},
                   1869},
        Impossible{"NegativeLossFactor",
                   Calculation::kSingleWallSea,
                   [](elements::Setup& setup) { setup.sea_leaf1.rows[0].slot.loss_factor = -0.1; },
                   {Field::kLossFactor, LayerGroup::kSeaLeaf1, 0},
                   1869},
        Impossible{"PoissonsRatio",
                   Calculation::kDoubleWallSeaBrick,
                   [](elements::Setup& setup) { setup.sea_leaf2.rows[0].slot.poissons_ratio = 1.5; },
                   {Field::kPoissonsRatio, LayerGroup::kSeaLeaf2, 0},
                   1870},
        Impossible{"DampingSheet",
                   Calculation::kSingleWallSea,
                   [](elements::Setup& setup) {
                     setup.sea_leaf1.damping[1].ticked = true;
                     setup.sea_leaf1.damping[1].row.slot = {.name = "Lamina", .thickness_mm = -3};
                   },
                   {Field::kThickness, LayerGroup::kSeaDamping1, 1},
                   1868},
        Impossible{"FlowResistance",
                   Calculation::kDoubleWallGeneric,
                   [](elements::Setup& setup) {
                     setup.cavity.kind = elements::CavityKind::kGenericMaterial;
                     setup.cavity.layers.count = 1;
                     setup.cavity.layers.rows[0].slot = {
                         .name = "Lana", .thickness_mm = 10, .porous = true, .flow_resistance_pa_s_m = -1};
                   },
                   {Field::kFlowResistance, LayerGroup::kCavity, 0},
                   1868},
        Impossible{"ResilientLayer",
                   Calculation::kImpactFloatingFloor,
                   [](elements::Setup& setup) {
                     setup.resilient.count = 1;
                     setup.resilient.rows[0].slot.thickness_mm = -5;
                   },
                   {Field::kThickness, LayerGroup::kResilient, 0},
                   1868}),
    [](const auto& test) { return test.param.name; });

TEST(ImpossibleLayers, AreOfNoConcernWhereTheyAreNotRead) {
  elements::Setup setup = Plausible(Calculation::kSingleWallGeneric);
  const RunOutcome before = Outcome(setup);
  setup.leaf2.rows[0].slot.thickness_mm = -50;
  setup.leaf1.rows[9].slot.poissons_ratio = 7;
  setup.leaf1.count = 1;
  EXPECT_EQ(Outcome(setup).status, RunStatus::kDone);
}

elements::Setup Facade(bool simplified) {
  elements::Setup setup;
  setup.calculation = Calculation::kCompositeElement;
  setup.facade.simplified = simplified;
  setup.facade.count_text = "2";
  setup.base.area_text = "10";
  setup.base.rating_text = "50";
  setup.base.band_texts.fill("50");
  for (std::size_t i = 0; i < 2; ++i) {
    setup.facade.components[i].area_text = i == 0 ? "2" : "-";
    setup.facade.components[i].rating_text = "35";
    setup.facade.components[i].band_texts.fill("35");
  }
  return setup;
}

struct FacadeCase {
  const char* name{};
  bool simplified{};
  std::function<void(elements::Setup&)> spoil{};
  FieldId field{};
  int row = 0;
};
void PrintTo(const FacadeCase& facade, std::ostream* out) { *out << facade.name; }

class IncompleteFacades : public testing::TestWithParam<FacadeCase> {};

TEST_P(IncompleteFacades, AreRefusedWithPartAndField) {
  elements::Setup setup = Facade(GetParam().simplified);
  ASSERT_EQ(Outcome(setup).status, RunStatus::kDone);
  GetParam().spoil(setup);
  const RunOutcome outcome = Outcome(setup);
  EXPECT_EQ(outcome.status, RunStatus::kRefused);
  ASSERT_TRUE(outcome.refusal);
  EXPECT_EQ(outcome.refusal->field, GetParam().field);
  EXPECT_EQ(LeadingRow(outcome.refusal->reason).number, GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(
    Blanks, IncompleteFacades,
    testing::Values(FacadeCase{"WholeArea",
                               false,
                               [](elements::Setup& setup) { setup.base.area_text = ""; },
                               {Field::kArea},
                               1871},
                    FacadeCase{"BlankArea",
                               false,
                               [](elements::Setup& setup) { setup.facade.components[1].area_text = " "; },
                               {.field = Field::kArea, .index = 2},
                               1871},
                    FacadeCase{"AreaInTheSimplifiedForm",
                               true,
                               [](elements::Setup& setup) { setup.facade.components[0].area_text = ""; },
                               {.field = Field::kArea, .index = 1},
                               1871},
                    FacadeCase{"UntouchedComponent",
                               true,
                               [](elements::Setup& setup) { setup.facade.components[1] = {}; },
                               {.field = Field::kArea, .index = 2},
                               1871},
                    FacadeCase{"Rating",
                               true,
                               [](elements::Setup& setup) { setup.facade.components[0].rating_text = ""; },
                               {.field = Field::kRating, .index = 1},
                               1871},
                    FacadeCase{"OpaqueRating",
                               true,
                               [](elements::Setup& setup) { setup.base.rating_text = ""; },
                               {Field::kRating},
                               1871},
                    FacadeCase{"NegativeWholeArea",
                               false,
                               [](elements::Setup& setup) { setup.base.area_text = "-10"; },
                               {Field::kArea},
                               256},
                    FacadeCase{"NegativeArea",
                               false,
                               [](elements::Setup& setup) { setup.facade.components[0].area_text = "-2"; },
                               {.field = Field::kArea, .index = 1},
                               1014},
                    FacadeCase{"Band",
                               false,
                               [](elements::Setup& setup) { setup.facade.components[1].band_texts[9] = ""; },
                               {.field = Field::kBand, .index = 2, .band = 9},
                               257},
                    FacadeCase{"ComponentsFillIt",
                               false,
                               [](elements::Setup& setup) { setup.facade.components[0].area_text = "10"; },
                               {.field = Field::kArea, .index = 1},
                               256}),
    [](const auto& test) { return test.param.name; });

TEST(IncompleteFacades, KeepASmallElementThatIsWrittenAsZero) {
  elements::Setup dash = Facade(false);
  elements::Setup zero = dash;
  zero.facade.components[1].area_text = "0";
  EXPECT_EQ(Outcome(dash).result, Outcome(zero).result);
}

TEST(FailedRuns, NameTheFieldThatHoldsNoNumber) {
  elements::Setup setup = Plausible(Calculation::kDoubleWallGeneric);
  setup.width_text = "4 metri";
  setup.height_text = "4 metri";  // the same text twice: only the first is at fault
  RunOutcome outcome = Outcome(setup);
  ASSERT_TRUE(outcome.refusal);
  EXPECT_EQ(outcome.refusal->field, FieldId{Field::kWidth});
  setup = Plausible(Calculation::kDoubleWallGeneric);
  setup.cavity.depth_text = "uno";
  outcome = Outcome(setup);
  EXPECT_EQ(outcome.status, RunStatus::kFailed);
  EXPECT_EQ(outcome.refusal->field, FieldId{Field::kCavityDepth});
}

TEST(Results, KeepTheRangesThatWereLeft) {
  elements::Setup setup = Plausible(Calculation::kSingleWallBrick);
  setup.leaf1.count = 1;
  setup.leaf1.rows[0].slot.thickness_mm = 50;
  setup.leaf1.rows[0].slot.density_kg_m3 = 800;
  setup.leaf1.rows[0].multiplicity = 1;
  const RunOutcome outcome = Outcome(setup);
  ASSERT_TRUE(outcome.result);
  ASSERT_EQ(outcome.result->ranges_left.size(), 1U);
  const acoustics::RangeLeft& left = outcome.result->ranges_left.front();
  EXPECT_EQ(left.check, MessagePiece(MessageRow{195}));
  EXPECT_DOUBLE_EQ(left.value, 40.0);
  EXPECT_EQ(left.lowest, 80.0);
  EXPECT_EQ(left.highest, 400.0);
  setup.leaf1.rows[0].slot.thickness_mm = 150;
  EXPECT_TRUE(Outcome(setup).result->ranges_left.empty());
}

TEST(RangeQuestion, NamesTheValueAndTheRange) {
  elements::Setup setup = Plausible(Calculation::kSingleWallBrick);
  setup.leaf1.count = 1;
  setup.leaf1.rows[0].slot.thickness_mm = 50;
  setup.leaf1.rows[0].slot.density_kg_m3 = 800;
  setup.leaf1.rows[0].multiplicity = 1;
  Message asked;
  RunCalculation(setup, 0.0, [&asked](const Message& question) {
    asked = question;
    return false;
  });
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(LeadingRow(asked[0]), MessageRow{195});
  EXPECT_EQ(std::get<std::string>(asked[0].at(5)), " = 40 kg/m² (");
  EXPECT_EQ(std::get<std::string>(asked[0].at(7)), " 80 ");
  EXPECT_EQ(asked[1], MessageLine{MessageRow{190}});
}

}  // namespace
}  // namespace velmar::calculation
