#pragma once

#include <span>

#include "models/floors/resilient_mats.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

/// Surface mass of `layers`, kg/m²; 0 without layers.
double SurfaceMass(std::span<const PlateLayer> layers);

/// Surface mass of `layers`, kg/m²; a layer of negative density tells none and does not take part.
double SurfaceMass(std::span<const ResilientMat> layers);

}  // namespace velmar::models
