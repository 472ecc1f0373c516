#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "models/sea/plate_radiation.h"

namespace velmar::models {

/// A damping sheet on a layer.
struct SeaDampingSheet {
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  double youngs_modulus_gpa = 0.0;
};

/// A layer of an element, with the damping sheets that are ticked.
struct SeaLayer {
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  double youngs_modulus_gpa = 0.0;
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  std::array<std::optional<SeaDampingSheet>, 2> damping{};
};

/// The layers of one side by slot; a slot without a material is empty.
inline constexpr std::size_t kSeaLayerSlots = 3;
using SeaSide = std::array<std::optional<SeaLayer>, kSeaLayerSlots>;

/// The modulus in Pa that a layer is calculated with: 2 GPa less than its own where at least 2 GPa remain.
double ReducedModulus(double youngs_modulus_gpa);

/// The internal loss factor of a layer: half as much again with a damping sheet.
double DampedLossFactor(const SeaLayer& layer);

/// Size of an element, m.
struct SeaElementSize {
  double length_a_m = 0.0;
  double length_b_m = 0.0;
};

/// The leaf that a layer makes with its damping sheets.
SeaPlateInput PlateOf(const SeaLayer& layer, const SeaElementSize& size, double radiation_cap);

/// SeaPlateRadiation() that names the fault.
/// @throws ArithmeticFailure when the plate has one
SeaPlate RequirePlate(const SeaPlateInput& input);

}  // namespace velmar::models
