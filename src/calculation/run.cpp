#include "calculation/run.h"

#include <array>
#include <cmath>
#include <utility>

#include "calculation/cavity_rules.h"
#include "calculation/family_runs.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Model;

constexpr const char* kFallbackNumber = "10";

RunOutcome RunModel(const RunRequest& request) {
  switch (RowOf(request.calculation).model) {
    case Model::kSingleWall:
      return RunSingleWall(request);
    case Model::kSingleSeaWall:
      return RunSingleSeaWall(request);
    case Model::kDoubleWall:
      return RunDoubleWall(request);
    case Model::kFloatingScreedFloor:
      return RunFloatingScreedFloor(request);
    case Model::kLightDoubleWall:
      return RunLightDoubleWall(request);
    case Model::kDoubleSeaWall:
      return RunDoubleSeaWall(request);
    case Model::kSeaLining:
      return RunSeaLining(request);
    case Model::kGenericLining:
      return RunGenericLining(request);
    case Model::kCompositeElement:
      return RunCompositeElement(request);
    case Model::kImpactFloor:
      return RunImpactFloor(request);
  }
  return Refused({{kNoCalculationRow}});
}

void RequireFinite(const elements::ResultSet& result) {
  if (result.spectrum) {
    for (const double level : *result.spectrum) velmar::RequireFinite(level, "a band");
  }
  for (const auto& number :
       {result.shift, result.rw, result.c, result.ctr, result.relation_rating, result.delta_rw, result.lnw,
        result.ci, result.delta_lnw, result.rw_estimate, result.delta_rw_estimate,
        result.critical_frequency_hz, result.loss_factor, result.mass_kg_m2, result.bending_stiffness_nm}) {
    if (number) velmar::RequireFinite(*number, "a single number");
  }
}

}  // namespace

RunOutcome Refused(Message message) {
  RunOutcome outcome;
  outcome.status = RunStatus::kRefused;
  outcome.messages.push_back(std::move(message));
  return outcome;
}

void PrepareRun(elements::Setup& setup) {
  if (!setup.calculation) return;
  const Model model = RowOf(*setup.calculation).model;
  const bool reads_depth = model == Model::kDoubleWall || model == Model::kLightDoubleWall;
  if (reads_depth && setup.cavity.depth_text.empty()) setup.cavity.depth_text = kFallbackNumber;
  if (model == Model::kLightDoubleWall && setup.support_distance_text.empty()) {
    setup.support_distance_text = kFallbackNumber;
  }
  const bool lining = model == Model::kSeaLining || model == Model::kGenericLining;
  if (lining || model == Model::kDoubleSeaWall) RaiseSeaCavityDepth(setup);
  if (lining && setup.base.thickness_mm == 0.0) setup.base.thickness_mm = elements::kDefaultBaseThicknessMm;
}

RunOutcome RunCalculation(const elements::Setup& setup, double loss_factor_before, const AskToGoOn& ask) {
  if (!setup.calculation) return Refused({{kNoCalculationRow}});
  RunOutcome outcome;
  // Questions are kept whatever becomes of the run.
  std::vector<Message> questions;
  const AskToGoOn ask_and_keep = [&](const Message& question) {
    questions.push_back(question);
    return ask(question);
  };
  try {
    outcome = RunModel({setup, *setup.calculation, loss_factor_before, ask_and_keep});
    if (outcome.result) RequireFinite(*outcome.result);
  } catch (const ArithmeticFailure& failure) {
    outcome = {.status = RunStatus::kFailed, .messages = {failure.UserMessage()}};
  }
  outcome.messages.insert(outcome.messages.begin(), questions.begin(), questions.end());
  return outcome;
}

}  // namespace velmar::calculation
