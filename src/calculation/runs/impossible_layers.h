#pragma once

#include <optional>

#include "calculation/runs/run.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// The first layer of the chosen calculation whose data no material can have: a negative thickness, density,
/// Young's modulus or flow resistance, a loss factor outside 0 to 1, a Poisson's ratio outside 0 to 0.5. A
/// model would give a plausible rating all the same. What the models do not read of a layer is not looked at.
/// A row in use without a material is one of them: it is there and counts for nothing.
std::optional<Refusal> FindImpossibleLayer(const elements::Setup& setup);

}  // namespace velmar::calculation
