#include "calculation/runs/run.h"

#include <cmath>
#include <utility>

#include "calculation/edits/cavity_rules.h"
#include "calculation/runs/entered_numbers.h"
#include "calculation/runs/family_runs.h"
#include "calculation/runs/impossible_layers.h"
#include "calculation/runs/refusals.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"

namespace velmar::calculation {
namespace {

using elements::Field;
using elements::Model;

constexpr const char* kFallbackNumber = "10";

constexpr bool EveryModelRuns() {
  for (std::size_t i = 0; i < kModelRuns.size(); ++i) {
    if (static_cast<std::size_t>(kModelRuns[i].model) != i) return false;
  }
  return kModelRuns.size() == elements::kModelCount;
}
static_assert(EveryModelRuns());

RunOutcome RunModel(const RunRequest& request) {
  return kModelRuns.at(static_cast<std::size_t>(RowOf(request.calculation).model)).run(request);
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

RunOutcome Refused(Refusal refusal) {
  RunOutcome outcome = Refused(Message{refusal.reason});
  outcome.refusal = std::move(refusal);
  return outcome;
}

void PrepareRun(elements::Setup& setup) {
  if (!setup.calculation) return;
  const elements::CalculationRow& row = RowOf(*setup.calculation);
  if (row.Reads(Field::kCavityDepth) && setup.cavity.depth_text.empty())
    setup.cavity.depth_text = kFallbackNumber;
  if (row.model == Model::kLightDoubleWall && setup.support_distance_text.empty()) {
    setup.support_distance_text = kFallbackNumber;
  }
  if (row.Reads(Field::kSeaCavityDepth)) RaiseSeaCavityDepth(setup);
  if (row.Reads(Field::kBaseThickness) && setup.base.thickness_mm == 0.0)
    setup.base.thickness_mm = elements::kDefaultBaseThicknessMm;
}

RunOutcome RunCalculation(const elements::Setup& setup, double loss_factor_before, const AskToGoOn& ask) {
  if (!setup.calculation) return Refused({{kNoCalculationRow}});
  if (std::optional<Refusal> impossible = FindImpossibleLayer(setup)) return Refused(std::move(*impossible));
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
  } catch (const FieldFailure& failure) {
    outcome = {.status = RunStatus::kFailed,
               .messages = {failure.UserMessage()},
               .refusal = Refusal{failure.Field(), failure.UserMessage().back()}};
  } catch (const ArithmeticFailure& failure) {
    outcome = {.status = RunStatus::kFailed, .messages = {failure.UserMessage()}};
  }
  if (!outcome.result && !outcome.refusal && outcome.status != RunStatus::kDeclined)
    outcome.refusal = FindRefusal(setup, outcome.messages);
  outcome.messages.insert(outcome.messages.begin(), questions.begin(), questions.end());
  return outcome;
}

}  // namespace velmar::calculation
