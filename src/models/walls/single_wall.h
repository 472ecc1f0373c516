#pragma once

#include <vector>

#include "acoustics/bands.h"
#include "models/plates/loss_factor.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

/// A wall, floor slab or pane that acts as one plate.
struct SingleWallInput {
  std::vector<PlateLayer> layers;  ///< 1 to 10
  PlateDimensions dimensions;
};

/// What the model of a single wall leaves behind.
struct SingleWallResult {
  acoustics::Spectrum spectrum{};      ///< R, dB
  double critical_frequency_hz = 0.0;  ///< Fc
  double internal_loss_factor = 0.0;   ///< EtaInt
  double mass_kg_m2 = 0.0;             ///< Mass
  double bending_n_m = 0.0;            ///< Bending
};

/// The airborne insulation of a single wall: one plate with internal, radiation and edge losses, on the 10 Hz
/// grid brought down to the 21 bands.
/// @throws ArithmeticFailure when thickness, mass, stiffness or a dimension is missing
SingleWallResult CalculateSingleWall(const SingleWallInput& input);

}  // namespace velmar::models
