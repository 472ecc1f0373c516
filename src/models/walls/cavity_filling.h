#pragma once

#include "models/plates/impedance.h"
#include "models/walls/double_wall.h"

namespace velmar::models {

/// A cavity as the transmission model sees it.
struct CavityFilling {
  Cavity cavity;  ///< the gap may still be too small, see WithSmallestGap()
  Plate solid;    ///< the third plate: the solid layers, without the part of its losses that depends on
                  ///< the frequency. Its loss factor is the sum of those of its layers, not a mean
};

/// The cavity of `input`. Empty: a gap of the whole depth. Fibrous: porous over the whole depth, no gap. With
/// layers: absorbing ones add their flow resistivity and thickness to the porous layer, the others make the
/// third plate, what they leave of the depth is the gap.
/// @throws ArithmeticFailure when an absorbing layer has no thickness or a Poisson's ratio is 1 or -1
CavityFilling FillCavity(const DoubleWallInput& input);

/// `cavity` with a gap of 5 mm when gap and porous layer together stay below that; the porous layer is left
/// as it is.
Cavity WithSmallestGap(Cavity cavity);

}  // namespace velmar::models
