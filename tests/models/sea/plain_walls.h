#pragma once

#include "acoustics/bands.h"
#include "models/sea/double_sea_wall.h"
#include "models/sea/lining.h"
#include "models/sea/single_sea_wall.h"
#include "tests/models/sea/plain_primitives.h"

namespace velmar::plain {

/// The plain cavity: level in dB and the power that its masses hand to the heavier side.
struct CavityLevels {
  HzSpectrum rc{};
  HzSpectrum w{};
};
CavityLevels CavityLayers(const models::SeaCavity& cavity, const models::SeaElementSize& size,
                          const HzSpectrum& bridge);

acoustics::Spectrum SingleSeaWall(const models::SingleSeaWallInput& input);
acoustics::Spectrum DoubleSeaWall(const models::DoubleSeaWallInput& input);
/// @param base_db the completed spectrum of the base element
acoustics::Spectrum Lining(const models::LiningInput& input, const acoustics::Spectrum& base_db,
                           double connections);

}  // namespace velmar::plain
