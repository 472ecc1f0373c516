#pragma once

#include <array>
#include <span>

#include "acoustics/bands.h"
#include "acoustics/fine_grid.h"

namespace velmar::models {

/// BandR() of a single plate at each point of the 10 Hz grid, dB.
/// @param mass_kg_m2 the plate's surface mass
/// @param bending_n_m its bending stiffness
/// @param loss_factors its total loss factor at each point
/// @throws ArithmeticFailure when a value is not finite
std::array<double, acoustics::kFineGridPoints> FineGridBandR(
    double mass_kg_m2, double bending_n_m, std::span<const double, acoustics::kFineGridPoints> loss_factors);

/// FineGridBandR() brought down to the 21 bands.
acoustics::Spectrum SinglePlateSpectrum(double mass_kg_m2, double bending_n_m,
                                        std::span<const double, acoustics::kFineGridPoints> loss_factors);

}  // namespace velmar::models
