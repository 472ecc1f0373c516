#pragma once

#include "models/sea/layers.h"
#include "models/sea/wall_outcome.h"

namespace velmar::models {

/// A wall of up to three layers, each a leaf of its own.
struct SingleSeaWallInput {
  SeaElementSize size{};
  double total_thickness_mm = 0.0;  ///< `Text3`
  SeaSide layers{};
};

/// Sound reduction index of a single wall by energy balance at every Hz. The layers' power ratios add up;
/// from the second slot on, each step doubles the sum.
/// @throws ArithmeticFailure when no layer is given or a layer has no balance
SeaWallOutcome CalculateSingleSeaWall(const SingleSeaWallInput& input);

}  // namespace velmar::models
