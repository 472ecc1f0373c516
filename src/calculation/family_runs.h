#pragma once

#include "calculation/run.h"
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

/// The outcome of a calculation that something kept from running.
RunOutcome Refused(Message message);

}  // namespace velmar::calculation
