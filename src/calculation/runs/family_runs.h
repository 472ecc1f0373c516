#pragma once

#include <array>

#include "calculation/runs/run.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// What a family's run is given.
struct RunRequest {
  const elements::Setup& setup;
  elements::Calculation calculation;
  double loss_factor_before;  ///< EtaInt of the result that stands
  const AskToGoOn& ask;
};

// One run a model: inputs out of the set-up, the model, ratings. Each throws ArithmeticFailure when the
// arithmetic comes to nothing usable.

RunOutcome RunSingleWall(const RunRequest& request);
RunOutcome RunDoubleWall(const RunRequest& request);
RunOutcome RunFloatingScreedFloor(const RunRequest& request);
RunOutcome RunLightDoubleWall(const RunRequest& request);
RunOutcome RunSingleSeaWall(const RunRequest& request);
RunOutcome RunDoubleSeaWall(const RunRequest& request);
RunOutcome RunSeaLining(const RunRequest& request);
RunOutcome RunGenericLining(const RunRequest& request);
RunOutcome RunCompositeElement(const RunRequest& request);
RunOutcome RunImpactFloor(const RunRequest& request);
RunOutcome RunLayered(const RunRequest& request);

/// The outcome of a calculation that something kept from running.
RunOutcome Refused(Message message);
/// The same where the reason is the whole message.
RunOutcome Refused(Refusal refusal);

/// The run of a model.
struct ModelRun {
  elements::Model model{};
  RunOutcome (*run)(const RunRequest& request) = nullptr;
};

/// One a model.
inline constexpr std::array kModelRuns = {
    ModelRun{elements::Model::kSingleWall, RunSingleWall},
    ModelRun{elements::Model::kSingleSeaWall, RunSingleSeaWall},
    ModelRun{elements::Model::kDoubleWall, RunDoubleWall},
    ModelRun{elements::Model::kFloatingScreedFloor, RunFloatingScreedFloor},
    ModelRun{elements::Model::kLightDoubleWall, RunLightDoubleWall},
    ModelRun{elements::Model::kDoubleSeaWall, RunDoubleSeaWall},
    ModelRun{elements::Model::kSeaLining, RunSeaLining},
    ModelRun{elements::Model::kGenericLining, RunGenericLining},
    ModelRun{elements::Model::kCompositeElement, RunCompositeElement},
    ModelRun{elements::Model::kImpactFloor, RunImpactFloor},
    ModelRun{elements::Model::kLayered, RunLayered},
};

}  // namespace velmar::calculation
