#pragma once

#include "elements/setup.h"

namespace velmar::calculation {

/// Chooses `calculation` for `setup`, as its menu entry does. All entered values stay; only what the
/// calculation has a default of its own for is set: dimensions, `Text8`, the cavity's kind and type, the
/// simplified form of a lining.
void SelectCalculation(elements::Setup& setup, elements::Calculation calculation);

}  // namespace velmar::calculation
