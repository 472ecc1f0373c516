#pragma once

#include <cstddef>

#include "models/layered/layered_element.h"

namespace velmar::models {

// The formulas as they are written down: chain matrices of complex numbers, fixed rules of integration. Reads
// the records alone and calls nothing of the model.

/// tau of the unbounded stack at one angle of incidence, without window and paths.
double PlainPlaneWaveTau(const LayeredElement& element, double frequency_hz, double theta_rad,
                         double azimuth_rad = 0.0);

/// R in dB per band of leaves and cavities (resonant transmission of a single leaf included), at `sub_bands`
/// frequencies a band and `nodes` angles of Gauss and Legendre.
acoustics::Spectrum PlainCavityPath(const LayeredElement& element, int sub_bands, int nodes);

/// R in dB of one band as above, at `azimuths` equidistant azimuths.
double PlainCavityPathOfBand(const LayeredElement& element, std::size_t band, int sub_bands, int nodes,
                             int azimuths);

}  // namespace velmar::models
