#pragma once

#include "acoustics/bands.h"
#include "models/walls/light_double_wall.h"

namespace velmar::models {

/// The curve of one leaf of a light wall.
struct LightLeaf {
  acoustics::Spectrum bands{};                  ///< dB, LeafBand1 or LeafBand2
  double highest_critical_frequency_hz = -1.0;  ///< of its sheets
};

/// The curve of the rows of `leaf`, on the 10 Hz grid from 50 Hz brought down to the 21 bands: with one sheet
/// its own curve, otherwise the sum of the sheets in energy. A sheet follows the mass law up to half of its
/// critical frequency, a line straight in the frequency up to it, and Cremer's formula above; never above the
/// mass law.
/// @param loss_factor of every sheet
/// @param resonance_hz F0; above it an empty cavity costs 2 dB
/// @throws ArithmeticFailure when a sheet has no thickness, mass or stiffness, or the losses are not positive
LightLeaf FindLightLeaf(const LeafRows& leaf, double loss_factor, double resonance_hz,
                        CavityKind cavity_kind);

}  // namespace velmar::models
