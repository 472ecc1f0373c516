#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include "models/floors/resilient_mats.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

inline PlateLayer Concrete(double thickness_mm) {
  return {.thickness_mm = thickness_mm,
          .density_kg_m3 = 2400.0,
          .youngs_modulus_gpa = 30.0,
          .loss_factor = 0.015,
          .poissons_ratio = 0.2};
}

inline PlateLayer Mortar(double thickness_mm) {
  return {.thickness_mm = thickness_mm,
          .density_kg_m3 = 2000.0,
          .youngs_modulus_gpa = 25.0,
          .loss_factor = 0.01,
          .poissons_ratio = 0.2};
}

inline ResilientMat Mat(double dynamic_stiffness_mn_m3) {
  return {.thickness_mm = 10.0, .density_kg_m3 = 30.0, .dynamic_stiffness_mn_m3 = dynamic_stiffness_mn_m3};
}

inline double Between(std::mt19937& random, double lowest, double highest) {
  return std::uniform_real_distribution<double>(lowest, highest)(random);
}

/// One to `most` layers of anything from insulating board to steel.
inline std::vector<PlateLayer> RandomLayers(std::mt19937& random, int most) {
  std::vector<PlateLayer> layers(
      static_cast<std::size_t>(std::uniform_int_distribution<int>(1, most)(random)));
  for (PlateLayer& layer : layers) {
    layer = {.multiplicity = std::uniform_int_distribution<int>(1, 4)(random),
             .thickness_mm = std::exp(Between(random, 0.0, 6.0)),
             .density_kg_m3 = Between(random, 30.0, 7800.0),
             .youngs_modulus_gpa = std::exp(Between(random, -4.0, 5.0)),
             .loss_factor = Between(random, 0.0, 0.3),
             .poissons_ratio = Between(random, 0.0, 0.49)};
  }
  return layers;
}

/// Up to three layers, some without a dynamic stiffness.
inline std::vector<ResilientMat> RandomMats(std::mt19937& random) {
  std::vector<ResilientMat> mats(static_cast<std::size_t>(std::uniform_int_distribution<int>(0, 3)(random)));
  for (ResilientMat& mat : mats) {
    mat = {.multiplicity = std::uniform_int_distribution<int>(1, 4)(random),
           .thickness_mm = Between(random, 2.0, 50.0),
           .density_kg_m3 = Between(random, -20.0, 200.0),
           .dynamic_stiffness_mn_m3 = std::max(0.0, Between(random, -30.0, 120.0))};
  }
  return mats;
}

}  // namespace velmar::models
