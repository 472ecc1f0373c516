#pragma once

#include <optional>
#include <vector>

#include "calculation/runs/run.h"
#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::calculation {

/// What to correct first after a run of `setup` ended with `messages`: each row that a model refuses or fails
/// with belongs to a field. Nothing where no single field is to blame.
std::optional<Refusal> FindRefusal(const elements::Setup& setup, const std::vector<Message>& messages);

}  // namespace velmar::calculation
