#pragma once

#include <optional>

#include "calculation/runs/run.h"
#include "elements/setup.h"
#include "models/facades/composite_element.h"

namespace velmar::calculation {

/// What the user has to enter or correct before the facade of `setup` can be summed up: a blank is no 0, and
/// only "-" and "0" make a small element.
std::optional<Refusal> FindMissingFacadeValue(const elements::Setup& setup);

/// The facade of `setup` as its model reads it.
/// @throws FieldFailure when a field that is read holds no number
models::CompositeElementInput FacadeInputOf(const elements::Setup& setup);

}  // namespace velmar::calculation
