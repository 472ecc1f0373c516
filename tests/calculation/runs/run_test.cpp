#include "calculation/runs/run.h"

#include <cmath>

#include <gtest/gtest.h>

namespace velmar::calculation {
namespace {

using elements::Calculation;

/// One answer to every question; keeps what was asked.
class Asked {
 public:
  explicit Asked(bool answer) : answer_(answer) {}

  AskToGoOn Function() {
    return [this](const Message& question) {
      rows_.push_back(LeadingRow(question.at(0)).number);
      EXPECT_EQ(LeadingRow(question.back()).number, 190);
      return answer_;
    };
  }
  const std::vector<int>& Rows() const { return rows_; }

 private:
  bool answer_;
  std::vector<int> rows_;
};

elements::LayerRow<elements::StructuralMaterial> Layer(double thickness_mm, double density_kg_m3,
                                                       double youngs_modulus_gpa = 5.0) {
  elements::LayerRow<elements::StructuralMaterial> row;
  row.slot = {.name = "Materiale",
              .thickness_mm = thickness_mm,
              .density_kg_m3 = density_kg_m3,
              .youngs_modulus_gpa = youngs_modulus_gpa,
              .loss_factor = 0.01,
              .poissons_ratio = 0.2};
  return row;
}

elements::Setup SingleWall(Calculation calculation, double thickness_mm, double density_kg_m3) {
  elements::Setup setup;
  setup.calculation = calculation;
  setup.leaf1.rows[0] = Layer(thickness_mm, density_kg_m3);
  return setup;
}

RunOutcome RunAsking(elements::Setup setup, Asked& asked) {
  PrepareRun(setup);
  return RunCalculation(setup, 0.0, asked.Function());
}

struct RangeCase {
  const char* name;
  Calculation calculation;
  double thickness_mm;
  double density_kg_m3;
  std::vector<int> questions;
};

class SingleWallRangeTest : public testing::TestWithParam<RangeCase> {};

TEST_P(SingleWallRangeTest, AsksAtMostOnceAndKeepsNothingWhenDeclined) {
  const RangeCase& test = GetParam();
  const elements::Setup setup = SingleWall(test.calculation, test.thickness_mm, test.density_kg_m3);
  Asked yes(true);
  const RunOutcome accepted = RunAsking(setup, yes);
  EXPECT_EQ(accepted.status, RunStatus::kDone);
  EXPECT_EQ(yes.Rows(), test.questions);
  EXPECT_EQ(accepted.messages.size(), test.questions.size());

  Asked no(false);
  const RunOutcome declined = RunAsking(setup, no);
  EXPECT_EQ(declined.status, test.questions.empty() ? RunStatus::kDone : RunStatus::kDeclined);
  EXPECT_EQ(declined.result.has_value(), test.questions.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, SingleWallRangeTest,
    testing::Values(RangeCase{"BrickAt80", Calculation::kSingleWallBrick, 100, 800, {}},
                    RangeCase{"BrickAt400", Calculation::kSingleWallBrick, 200, 2000, {}},
                    RangeCase{"BrickBelow80", Calculation::kSingleWallBrick, 100, 799, {195}},
                    RangeCase{"ConcreteTooLightAsksOnce", Calculation::kSingleWallConcrete, 50, 500, {197}},
                    RangeCase{"ConcreteTooDense", Calculation::kSingleWallConcrete, 200, 2000, {198}},
                    RangeCase{"ConcreteTooThick", Calculation::kSingleWallConcrete, 340, 1000, {199}},
                    RangeCase{"ConcreteAt330mm", Calculation::kSingleWallConcrete, 330, 1000, {}},
                    RangeCase{"GypsumAt80mm", Calculation::kSingleWallGypsumBlocks, 80, 1000, {}},
                    RangeCase{"GlassAt60", Calculation::kSinglePaneMonolithic, 24, 2500, {}},
                    RangeCase{"GlassAbove60", Calculation::kSinglePaneLaminated, 24.1, 2500, {216}},
                    RangeCase{"GenericNeverAsks", Calculation::kSingleWallGeneric, 1, 10, {}}),
    [](const auto& test) { return test.param.name; });

TEST(RunSingleWall, MovesTheCurveByTheExactDifference) {
  Asked none(true);
  const elements::ResultSet generic =
      *RunAsking(SingleWall(Calculation::kSingleWallGeneric, 120, 1000), none).result;
  const elements::ResultSet brick =
      *RunAsking(SingleWall(Calculation::kSingleWallBrick, 120, 1000), none).result;
  EXPECT_EQ(*generic.relation_rating, *generic.rw);
  // 16 lg 120 + 7 = 40.2669, narrowed to single precision.
  EXPECT_NEAR(*brick.relation_rating, 16 * std::log10(120.0) + 7, 1e-5);
  const double delta = *generic.rw - *brick.relation_rating;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    EXPECT_DOUBLE_EQ((*brick.spectrum)[band], (*generic.spectrum)[band] - delta);
  }
  EXPECT_EQ(*brick.rw, *brick.shift - 4);
}

TEST(RunSingleWall, GivesGlassTheSameCurveAsAnyPlate) {
  Asked none(true);
  const auto wall = RunAsking(SingleWall(Calculation::kSingleWallGeneric, 6, 2500), none);
  const auto pane = RunAsking(SingleWall(Calculation::kSinglePaneGeneric, 6, 2500), none);
  EXPECT_EQ(wall.result, pane.result);
}

TEST(RunSingleWall, NamesWhatToCheckWhenTheArithmeticFails) {
  Asked none(true);
  elements::Setup setup = SingleWall(Calculation::kSingleWallGeneric, 100, 0);
  const RunOutcome no_mass = RunAsking(setup, none);
  EXPECT_EQ(no_mass.status, RunStatus::kFailed);
  ASSERT_EQ(no_mass.messages.size(), 1U);
  EXPECT_EQ(no_mass.messages[0].size(), 2U);
  setup = SingleWall(Calculation::kSingleWallGeneric, 100, 1000);
  setup.width_text = "0";
  EXPECT_EQ(RunAsking(setup, none).status, RunStatus::kFailed);
  setup.width_text = "";
  EXPECT_EQ(RunAsking(setup, none).status, RunStatus::kFailed);
}

elements::Setup DoubleWall(Calculation calculation, elements::CavityKind kind) {
  elements::Setup setup = SingleWall(calculation, 80, 1000);
  setup.leaf2.rows[0] = Layer(120, 800);
  setup.cavity.kind = kind;
  setup.cavity.depth_text = "50";
  return setup;
}

TEST(RunDoubleWall, TakesTenMillimetresForAnEmptyDepth) {
  Asked none(true);
  elements::Setup setup = DoubleWall(Calculation::kDoubleWallGeneric, elements::CavityKind::kEmpty);
  setup.cavity.depth_text = "";
  const RunOutcome empty = RunAsking(setup, none);
  setup.cavity.depth_text = "10";
  EXPECT_EQ(empty.result, RunAsking(setup, none).result);
}

TEST(RunDoubleWall, ReadsTheFibreThicknessInRelationsAlone) {
  Asked none(true);
  elements::Setup setup = DoubleWall(Calculation::kDoubleWallGeneric, elements::CavityKind::kFibrous);
  const RunOutcome before = RunAsking(setup, none);
  setup.cavity.fibre_text = "40";
  EXPECT_EQ(before.result, RunAsking(setup, none).result);
  setup.calculation = Calculation::kDoubleWallBrickTorvalle;
  const double with_fibre = *RunAsking(setup, none).result->relation_rating;
  setup.cavity.kind = elements::CavityKind::kEmpty;  // read whatever the cavity holds
  EXPECT_EQ(*RunAsking(setup, none).result->relation_rating, with_fibre);
}

TEST(RunDoubleWall, OfConcreteAsksInItsOwnWordsAboutAFilledCavity) {
  elements::Setup setup = DoubleWall(Calculation::kDoubleWallConcrete, elements::CavityKind::kFibrous);
  setup.leaf1.rows[0] = Layer(120, 1200);
  Asked yes(true);
  const RunOutcome filled = RunAsking(setup, yes);
  ASSERT_EQ(filled.messages.size(), 1U);
  EXPECT_EQ(std::get<std::string>(filled.messages[0].at(0).at(0)),
            "La formula empirica si riferisce a pareti doppie con l'intercapedine vuota");
  setup.cavity.kind = elements::CavityKind::kEmpty;
  EXPECT_TRUE(RunAsking(setup, yes).messages.empty());
}

TEST(RunDoubleWall, OfTwoHeavyPanesAsks) {
  elements::Setup setup = DoubleWall(Calculation::kInsulatingGlass, elements::CavityKind::kEmpty);
  setup.leaf1.rows[0] = Layer(14, 2500, 70);
  setup.leaf2.rows[0] = Layer(14, 2500, 70);
  Asked yes(true);
  RunAsking(setup, yes);
  EXPECT_EQ(yes.Rows(), std::vector<int>{216});
}

TEST(RunLightDoubleWall, DividesTheLossFactorThatStands) {
  elements::Setup setup = DoubleWall(Calculation::kLightWallIsolated, elements::CavityKind::kFibrous);
  setup.leaf1.rows[0] = Layer(12.5, 900, 3);
  setup.leaf2.rows[0] = Layer(12.5, 900, 3);
  Asked none(true);
  const RunOutcome first = RunCalculation(setup, 0.3, none.Function());
  EXPECT_DOUBLE_EQ(*first.result->loss_factor, 0.3 / 0.075);
  const RunOutcome second = RunCalculation(setup, *first.result->loss_factor, none.Function());
  EXPECT_DOUBLE_EQ(*second.result->loss_factor, 0.3 / 0.075 / 0.075);
  EXPECT_EQ(first.result->rw, second.result->rw);
}

TEST(RunLightDoubleWall, ShowsTenForAnEmptyStudDistance) {
  elements::Setup setup = DoubleWall(Calculation::kLightWallLineLine, elements::CavityKind::kEmpty);
  setup.support_distance_text = "";
  PrepareRun(setup);
  EXPECT_EQ(setup.support_distance_text, "10");
}

TEST(RunFloatingScreedFloor, HasNoImprovementWithoutAResilientLayer) {
  elements::Setup setup = SingleWall(Calculation::kFloorWithFloatingScreed, 240, 1200);
  setup.leaf2.rows[0] = Layer(50, 2000);
  setup.resilient.count = 0;
  Asked yes(true);
  const RunOutcome bare = RunAsking(setup, yes);
  EXPECT_EQ(yes.Rows(), std::vector<int>{214});
  EXPECT_EQ(*bare.result->delta_rw, 0);
  setup.resilient.count = 1;
  setup.resilient.rows[0].slot = {.name = "Gomma", .thickness_mm = 5, .dynamic_stiffness_mn_m3 = 20};
  EXPECT_GT(*RunAsking(setup, yes).result->delta_rw, 0);
}

TEST(RunImpactFloor, AsksWithTheRowOfItsVariant) {
  elements::Setup setup = SingleWall(Calculation::kImpactReinforcedConcrete, 140, 500);
  setup.leaf2.rows[0] = Layer(50, 2000);
  setup.resilient.count = 0;
  Asked yes(true);
  const RunOutcome outcome = RunAsking(setup, yes);
  EXPECT_EQ(yes.Rows(), std::vector<int>{191});
  EXPECT_TRUE(outcome.result->lnw);
  EXPECT_FALSE(outcome.result->rw);
  EXPECT_EQ(*outcome.result->delta_lnw, 0);
}

}  // namespace
}  // namespace velmar::calculation
