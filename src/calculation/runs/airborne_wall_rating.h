#pragma once

#include "calculation/runs/family_runs.h"
#include "elements/result_set.h"
#include "models/relations/relation_input.h"

namespace velmar::calculation {

/// The end that all airborne walls share: shift and rating of `result`'s spectrum, the relation of the
/// calculation with its question, the adaptation terms of the moved spectrum. Without a relation RwRelation
/// is Rw.
/// @param result the model's spectrum and plate values
/// @throws ArithmeticFailure when spectrum or relation come to nothing usable
RunOutcome RateWall(const RunRequest& request, elements::ResultSet result,
                    const models::RelationInput& relation);

/// Asks about `range`, followed by the line that asks whether to go on. When the user does, `result` keeps
/// it.
bool AskToLeaveRange(const RunRequest& request, const acoustics::RangeLeft& range,
                     elements::ResultSet& result);

/// The outcome of a run whose question was answered with no.
RunOutcome Declined();

}  // namespace velmar::calculation
