#pragma once

#include "elements/setup.h"
#include "models/sea/cavity.h"
#include "models/sea/layers.h"

namespace velmar::calculation {

/// The layers of a side that are in use, with the damping sheets that are ticked. A row without a material is
/// left out.
models::SeaSide SeaSideOf(const elements::SeaLeaf& leaf);

/// The cavity with what its type shows; an empty depth counts as 0.
/// @throws ArithmeticFailure when the depth is no number
models::SeaCavity SeaCavityOf(const elements::SeaCavity& cavity);

}  // namespace velmar::calculation
