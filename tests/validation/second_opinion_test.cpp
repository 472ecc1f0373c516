#include "validation/second_opinion.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "calculation/runs/run.h"
#include "tests/validation/shipped_measurements.h"
#include "validation/model_choice.h"
#include "validation/model_prediction.h"
#include "validation/model_route.h"

namespace velmar::validation {
namespace {

using elements::Calculation;

const Accuracy& Known() {
  static const Accuracy accuracy(PredictWithAllModels(ShippedMeasurements()).predictions);
  return accuracy;
}

/// The set-up of a measured construction for `calculation`.
elements::Setup SetupOf(const std::string& id, Calculation calculation) {
  for (const auto& construction : ShippedMeasurements().constructions) {
    if (construction.id != id) continue;
    for (const auto& measured : construction.setups) {
      if (measured.setup.calculation == calculation) return measured.setup;
    }
  }
  ADD_FAILURE() << id;
  return {};
}

SecondOpinion OpinionOn(const elements::Setup& setup) {
  return FormOpinion(
      setup, calculation::RunCalculation(setup, 0.0, [](const Message&) { return true; }).result, Known());
}

std::vector<std::string> Ids(const SecondOpinion& opinion) {
  std::vector<std::string> ids;
  for (const ModelOpinion& model : opinion.models) ids.push_back((model.best ? "*" : "") + model.id);
  return ids;
}

TEST(SecondOpinion, APlasterboardWallHasTheLayeredModelMarked) {
  const SecondOpinion opinion = OpinionOn(SetupOf("rw-part-1s75-60", Calculation::kLightWallLineLine));
  EXPECT_EQ(opinion.kind, ElementKind::kStuds);
  EXPECT_EQ(Ids(opinion), (std::vector<std::string>{"calculation", "*layered"}));
  EXPECT_NEAR(opinion.models[1].result.rw.value(), 45.0, 1.0);
  ASSERT_TRUE(opinion.models[1].interval.interval);
  EXPECT_LT(opinion.models[1].interval.interval->low, 43.0);
  EXPECT_GT(opinion.models[1].interval.interval->high, 43.0);
  EXPECT_FALSE(opinion.note);
}

TEST(SecondOpinion, SeparateFramesHaveTheIsolatedLeavesMarkedWhichAreRunBeside) {
  const SecondOpinion opinion =
      OpinionOn(SetupOf("rw-part-twin2x75-60", Calculation::kDoubleWallPlasterboardSeparateStuds));
  EXPECT_EQ(opinion.kind, ElementKind::kSeparateFrames);
  EXPECT_EQ(Ids(opinion),
            (std::vector<std::string>{"calculation", "layered",
                                      "*Parete leggera doppia pannelli completamente isolati"}));
}

TEST(SecondOpinion, TheMarkedCalculationIsNotListedTwice) {
  EXPECT_EQ(Ids(OpinionOn(SetupOf("bhh-brick-255", Calculation::kSingleWallBrickFerrara))),
            (std::vector<std::string>{"*calculation", "layered", "monolithic"}));
}

// The generic double wall hardly sees its cavity: on boards it is far too low, and the user is told.
TEST(SecondOpinion, ANoteNamesTheBetterModelWhereTheChosenOneErrs) {
  const SecondOpinion opinion = OpinionOn(SetupOf("har-s90-22-abs", Calculation::kDoubleWallGeneric));
  ASSERT_TRUE(opinion.note);
  EXPECT_EQ(opinion.note->kind, ElementKind::kBoards);
  EXPECT_LT(opinion.note->bias_db, -8.0);
  EXPECT_GT(opinion.note->count, 80U);
  const Message lines = NoteLines(*opinion.note);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(std::get<MessageRow>(lines[0].back()), MessageRow{1930});
}

TEST(SecondOpinion, WithoutAResultTheOtherModelsStillSpeak) {
  const elements::Setup setup = SetupOf("bhh-glass-8", Calculation::kSinglePaneMonolithic);
  EXPECT_EQ(Ids(FormOpinion(setup, {}, Known())), (std::vector<std::string>{"*layered"}));
}

TEST(SecondOpinion, AFloorUnderImpactHasTheModelOfTheStandardBeside) {
  const SecondOpinion opinion =
      OpinionOn(SetupOf("fl-mat-8-screed30-tile", Calculation::kImpactFloatingFloor));
  EXPECT_EQ(Ids(opinion), (std::vector<std::string>{"*calculation", "footfall"}));
  EXPECT_TRUE(opinion.models[1].result.lnw);
  EXPECT_EQ(opinion.models[0].interval.reason, NoEstimate::kTooFew);
  EXPECT_TRUE(FormOpinion({}, {}, Known()).models.empty());
}

TEST(SecondOpinion, WhereNoOtherModelAppliesTheCalculationStandsAlone) {
  EXPECT_EQ(Ids(OpinionOn(SetupOf("har-lining-furr40-e1", Calculation::kLiningGeneric))),
            (std::vector<std::string>{"*calculation"}));
}

TEST(SecondOpinion, EveryMeasuredSetUpHasExactlyOneMarkedModel) {
  for (const auto& construction : ShippedMeasurements().constructions) {
    const SecondOpinion opinion = OpinionOn(construction.setups.front().setup);
    EXPECT_EQ(std::ranges::count(opinion.models, true, &ModelOpinion::best), 1) << construction.id;
  }
}

TEST(IntervalOfResult, ALiningIsJudgedByItsImprovement) {
  const elements::Setup setup = SetupOf("har-lining-furr40-e1", Calculation::kLiningGeneric);
  const auto run = calculation::RunCalculation(setup, 0.0, [](const Message&) { return true; });
  ASSERT_TRUE(run.result);
  const IntervalOutcome outcome = IntervalOfResult(setup, *run.result, Known());
  EXPECT_FALSE(outcome.interval);
  EXPECT_EQ(outcome.reason, NoEstimate::kOneSource);
}

TEST(IntervalOfResult, WithoutMeasurementsNothingIsClaimed) {
  const elements::Setup setup = SetupOf("bhh-brick-255", Calculation::kSingleWallBrick);
  const auto run = calculation::RunCalculation(setup, 0.0, [](const Message&) { return true; });
  ASSERT_TRUE(run.result);
  EXPECT_TRUE(IntervalOfResult(setup, *run.result, Known()).interval);
  const IntervalOutcome nothing = IntervalOfResult(setup, *run.result, Accuracy());
  EXPECT_FALSE(nothing.interval);
  EXPECT_EQ(nothing.reason, NoEstimate::kUnknownKind);
}

TEST(IntervalLine, IsInWholeDecibels) {
  EXPECT_EQ(IntervalLine({.interval = Interval{.low = 47.6, .high = 56.4, .count = 43}}),
            (MessageLine{MessageRow{1937}, std::string(" 48 "), MessageRow{1938}, std::string(" 56 (43 "),
                         MessageRow{1935}, std::string(")")}));
  EXPECT_EQ(IntervalLine({.reason = NoEstimate::kOneSource}),
            (MessageLine{MessageRow{1939}, std::string(": "), MessageRow{1942}}));
}

/// A brick wall with `rw` and the interval `low` to `high`.
std::vector<MessageRow> ConfidenceRows(double rw, double low, double high) {
  const elements::Setup setup = SetupOf("bhh-brick-255", Calculation::kSingleWallBrick);
  elements::ResultSet result;
  result.rw = rw;
  std::vector<MessageRow> rows;
  for (const MessageLine& line :
       ConfidenceLines(setup, result, {.interval = Interval{.low = low, .high = high, .count = 43}}))
    rows.push_back(LeadingRow(line));
  return rows;
}

TEST(ConfidenceLines, BeginWithTheResult) {
  const elements::Setup setup = SetupOf("bhh-brick-255", Calculation::kSingleWallBrick);
  elements::ResultSet result;
  result.rw = 52.0;
  const Message lines =
      ConfidenceLines(setup, result, {.interval = Interval{.low = 47.6, .high = 56.4, .count = 43}});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].front(), MessagePiece(std::string("Rw 52 dB · ")));
  EXPECT_EQ(lines[0].at(2), MessagePiece(std::string(" 48 ")));
  EXPECT_EQ(ConfidenceLines(setup, result, {.reason = NoEstimate::kTooFew}),
            (Message{{std::string("Rw 52 dB · "), MessageRow{1939}, std::string(": "), MessageRow{1941}}}));
  EXPECT_TRUE(ConfidenceLines(setup, {}, {}).empty());
  EXPECT_TRUE(ConfidenceOf(setup, {}, Known()).empty());
}

// As it is shown, in whole decibels: 52 lies in "from 52 to 60", whatever was cut off.
TEST(ConfidenceLines, SayInWordsThatTheResultLiesOutside) {
  EXPECT_EQ(ConfidenceRows(52, 52.4, 60), std::vector{MessageRow{1937}});
  EXPECT_EQ(ConfidenceRows(52, 52.6, 60), (std::vector{MessageRow{1937}, MessageRow{3318}}));
  EXPECT_EQ(ConfidenceRows(61, 52, 60.4), (std::vector{MessageRow{1937}, MessageRow{3317}}));
}

TEST(ConfidenceLines, OfAFloorSpeakOfLevels) {
  const elements::Setup setup = SetupOf("fl-mat-8-screed30-tile", Calculation::kImpactFloatingFloor);
  elements::ResultSet result;
  result.lnw = 62.0;
  const Message lines =
      ConfidenceLines(setup, result, {.interval = Interval{.low = 48, .high = 58, .count = 9}});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].front(), MessagePiece(std::string("Ln,w 62 dB · ")));
  EXPECT_EQ(lines[1], MessageLine{MessageRow{3319}});
}

TEST(ModelRules, MarkTheModelOfTheStandardWhereAFloorIsCovered) {
  ASSERT_TRUE(RuleFor(ElementKind::kImpactCovering));
  EXPECT_EQ(RuleFor(ElementKind::kImpactCovering)->model, "footfall");
  EXPECT_FALSE(RuleFor(ElementKind::kImpactScreed));
}

TEST(ModelRoute, TellsWhatTheModelOfFootfallWasGiven) {
  const ModelRoute route =
      RouteOf("footfall", SetupOf("fl-mat-8-screed30-tile", Calculation::kImpactFloatingFloor));
  ASSERT_EQ(route.inputs.size(), 2U);
  EXPECT_EQ(LeadingRow(route.inputs[0]), MessageRow{3360});
  EXPECT_EQ(LeadingRow(route.inputs[1]), MessageRow{3361});
}

TEST(ModelRules, NameOneKnownModelAKind) {
  std::set<ElementKind> kinds;
  for (const ModelRule& rule : ModelRules()) {
    EXPECT_TRUE(kinds.insert(rule.kind).second) << RowOf(rule.kind).id;
    EXPECT_TRUE(rule.model == kLayeredModel || rule.model == kMonolithicModel || rule.model == "footfall" ||
                elements::FindCalculation(rule.model))
        << rule.model;
  }
  EXPECT_FALSE(RuleFor(ElementKind::kOther));
}

TEST(ModelRoute, TellsWhatTheLayeredModelWasGiven) {
  const ModelRoute route =
      RouteOf(kLayeredModel, SetupOf("rw-part-1s75-60", Calculation::kLightWallLineLine));
  ASSERT_EQ(route.inputs.size(), 6U);
  EXPECT_EQ(route.inputs[0], (MessageLine{MessageRow{1962}, std::string(" 3,6 × 2,8 m")}));
  EXPECT_EQ(route.inputs[2], (MessageLine{MessageRow{1961}, std::string(" 75 mm: "), MessageRow{1966},
                                          std::string(" 60 mm (14000 Pa·s/m², 40 kg/m³)"), std::string(", "),
                                          MessageRow{1965}, std::string(" 15 mm")}));
  EXPECT_EQ(route.inputs[4], (MessageLine{MessageRow{1963}, std::string(" 600 mm, "), MessageRow{1967},
                                          std::string(" 1·10⁻⁶ m²/N")}));
  EXPECT_EQ(route.reason, MessageLine{MessageRow{1945}});
}

TEST(ModelRoute, TellsWhatTheMonolithicModelWasGiven) {
  const ModelRoute route =
      RouteOf(kMonolithicModel, SetupOf("bhh-brick-255", Calculation::kSingleWallGeneric));
  ASSERT_EQ(route.inputs.size(), 2U);
  EXPECT_EQ(route.inputs[1],
            (MessageLine{MessageRow{1960},
                         std::string(" 231 mm, 1891 kg/m³, cL 2700 m/s, η 0,010, + 43,2 kg/m²")}));
  EXPECT_TRUE(route.reason.empty());
}

TEST(ModelRoute, OfTheChosenCalculationNamesItsTheory) {
  const ModelRoute route =
      RouteOf("calculation", SetupOf("bhh-brick-255", Calculation::kSingleWallBrickFerrara));
  EXPECT_EQ(route.model, MessageLine{std::string("Parete singola in laterizio UniveFerrara")});
  EXPECT_EQ(route.reason, MessageLine{MessageRow{1946}});
  EXPECT_EQ(std::get<MessageRow>(route.source.at(2)), MessageRow{142});
}

}  // namespace
}  // namespace velmar::validation
