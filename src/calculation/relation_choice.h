#pragma once

#include <optional>

#include "elements/catalogue.h"
#include "models/relations/relation_id.h"

namespace velmar::calculation {

/// The experimental relation that moves the curve of `calculation`; nothing where the model's curve stands.
std::optional<models::RelationId> RelationOf(elements::Calculation calculation);

}  // namespace velmar::calculation
