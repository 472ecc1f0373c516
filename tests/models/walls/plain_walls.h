#pragma once

#include "acoustics/bands.h"
#include "models/walls/double_wall.h"
#include "models/walls/light_double_wall.h"
#include "models/walls/single_wall.h"

/// The walls' models as their formulas are written down, step by step: what the production code is compared
/// with.
namespace velmar::models {

acoustics::Spectrum PlainSingleWall(const SingleWallInput& input);
acoustics::Spectrum PlainDoubleWall(const DoubleWallInput& input);
acoustics::Spectrum PlainLightDoubleWall(const LightDoubleWallInput& input);

}  // namespace velmar::models
