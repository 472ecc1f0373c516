#pragma once

#include "models/sea/cavity.h"
#include "models/sea/layers.h"

namespace velmar::models {

// Building materials that several tests calculate with.

inline constexpr SeaElementSize kWallSize{.length_a_m = 4.0, .length_b_m = 2.8};

/// 9 kg/m², critical frequency 2914.49 Hz.
inline SeaLayer Plasterboard() {
  return {.thickness_mm = 12.5,
          .density_kg_m3 = 720,
          .youngs_modulus_gpa = 2.5,
          .loss_factor = 0.02,
          .poissons_ratio = 0.3};
}

inline SeaDampingSheet BitumenSheet() {
  return {.thickness_mm = 4, .density_kg_m3 = 1500, .youngs_modulus_gpa = 0.05};
}

inline SeaLayer Brick() {
  return {.thickness_mm = 120,
          .density_kg_m3 = 800,
          .youngs_modulus_gpa = 6,
          .loss_factor = 0.015,
          .poissons_ratio = 0.2};
}

inline SeaFill MineralWool(double absorption = 0.6) {
  SeaFill wool{.name = "Lana minerale", .thickness_mm = 50, .density_kg_m3 = 40};
  wool.absorption.fill(absorption);
  return wool;
}

inline SeaCavityMass HungBoard() {
  return {.thickness_mm = 12.5,
          .density_kg_m3 = 720,
          .youngs_modulus_gpa = 2.5,
          .loss_factor = 0.02,
          .poissons_ratio = 0.3};
}

}  // namespace velmar::models
