#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "materials/material_entry.h"

namespace velmar::materials {

/// Absorption coefficients that were computed where none stood.
struct ComputedAbsorption {
  decltype(FibrousEntry::absorption) coefficients{};  ///< of all bands: what was there, and what was computed
  std::vector<std::size_t> bands{};                   ///< those that were computed
};

/// Computes the bands of a porous `entry` that hold nothing, from its flow resistance and thickness: Delany
/// and Bazley, normal incidence, on a rigid wall, three decimals. No value that is there changes. Where flow
/// resistance or thickness are no positive numbers, and in bands that the model gives no value for, nothing
/// is computed.
ComputedAbsorption ComputeMissing(const FibrousEntry& entry);

/// The words that a source says of `bands`, computed from `entry`: model, thickness, bands, and those outside
/// the model's range. Stored data are Italian, as all sources are. Empty without bands.
std::string ComputationOf(const FibrousEntry& entry, std::span<const std::size_t> bands);

}  // namespace velmar::materials
