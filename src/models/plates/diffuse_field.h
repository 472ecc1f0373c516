#pragma once

#include <cstddef>
#include <span>

#include "models/plates/impedance.h"

namespace velmar::models {

inline constexpr std::size_t kMostPlates = 3;
/// So many frequencies run side by side; a multiple of it wastes none.
inline constexpr std::size_t kFrequencyLanes = 8;

/// The transmission coefficient in a diffuse field at each of `frequencies_hz`, into `taus` of the same
/// length: the hot loop of every airborne model. It works on groups of frequencies side by side with
/// additions, products and quotients alone, so that every machine gives the same bits however wide its
/// vectors are.
///
/// Each group shares what the angle decides, each frequency shares what all angles have in common; an
/// impedance times the cosine of its angle leaves one quotient a coefficient.
/// @throws ArithmeticFailure when a cavity's flow resistivity is not positive
void DiffuseTau(std::span<const double> frequencies_hz, std::span<const Plate> plates, const Cavity& cavity,
                std::span<double> taus);

}  // namespace velmar::models
