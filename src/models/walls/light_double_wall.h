#pragma once

#include <array>
#include <cstddef>

#include "acoustics/bands.h"
#include "acoustics/constructions.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

using acoustics::CavityKind;
using acoustics::LightWallForm;

/// The rows of a leaf. What stands beyond `count` takes part too, because rows of the other leaf are read by
/// the same number: a row never chosen holds 0.
struct LeafRows {
  std::array<PlateLayer, 10> rows{};
  std::size_t count = 0;  ///< rows of the leaf, 1 to 10
};

/// Two light leaves on a frame.
struct LightDoubleWallInput {
  LeafRows leaf1;
  LeafRows leaf2;
  double depth_m = 0.0;          ///< d, between the leaves
  double stud_distance_m = 0.0;  ///< b, between the connections; read by the connected forms
  double dim_b_m = 0.0;          ///< the element's second dimension; read by the connected forms
  CavityKind cavity_kind = CavityKind::kEmpty;
  LightWallForm form = LightWallForm::kIsolated;
};

/// What the model of a light double wall leaves behind.
struct LightDoubleWallResult {
  acoustics::Spectrum spectrum{};   ///< R, dB
  double leaf1_mass_kg_m2 = 0.0;    ///< m1, with the thicknesses of the second leaf's rows
  double leaf2_mass_kg_m2 = 0.0;    ///< m2
  double resonance_hz = 0.0;        ///< F0, mass-air-mass; the mass law holds up to it
  double depth_resonance_hz = 0.0;  ///< Fd, from which the depth counts no more
};

/// The airborne insulation of a light double wall after Sharp: curves of the sheets, of the leaves, of the
/// wall, and the limit set by the connections.
///
/// Saved ratings depend on three readings of it: the first leaf's mass takes the thickness from the second
/// leaf's row of the same number, the second leaf's losses are those of the first leaf's rows, and losses are
/// sums over the sheets, not means.
///
/// @throws ArithmeticFailure when a leaf has no mass, stiffness or losses, without depth, and for the
/// connected forms without their distance or dimension
LightDoubleWallResult CalculateLightDoubleWall(const LightDoubleWallInput& input);

}  // namespace velmar::models
