#pragma once

#include <cstddef>

#include "acoustics/bands.h"
#include "models/walls/light_double_wall.h"

namespace velmar::models {

/// A light wall whose leaves are connected.
struct BridgedWall {
  LightWallForm form = LightWallForm::kLineLine;
  double leaf1_mass_kg_m2 = 0.0;
  double leaf2_mass_kg_m2 = 0.0;
  double leaf1_critical_hz = 0.0;  ///< FcLeaf1, the highest of its sheets
  double leaf2_critical_hz = 0.0;  ///< FcLeaf2
  double stud_distance_m = 0.0;
  double dim_b_m = 0.0;
};

/// True when the leaves of `form` are connected.
bool IsConnected(LightWallForm form);

/// The insulation in dB of the connections of `wall` in each band.
/// @throws ArithmeticFailure when stud distance or dimension is not positive
acoustics::Spectrum BridgedValues(const BridgedWall& wall);

/// `unbridged` limited by `bridged`: it goes through the bridged value at band `peak_band` and keeps its
/// shape above; below, the bridged value holds where it is lower. The band before the first lowered one
/// becomes the mean of its neighbours, and once, where the limit ends, the band before is lifted from the
/// bridged curve.
acoustics::Spectrum LimitByBridges(const acoustics::Spectrum& unbridged, const acoustics::Spectrum& bridged,
                                   std::size_t peak_band);

}  // namespace velmar::models
