#pragma once

#include <span>

#include "models/plates/plate_layer.h"

namespace velmar::models {

/// The sums over the layers of one plate.
struct PlateStack {
  double thickness_m = 0.0;  ///< Sum_h
  /// Sum_Eh2, N: the sum of E h² / (1 - nu²) over the layers. Each modulus goes with the square of its own
  /// layer's thickness; the total thickness comes in afterwards. It is not the stiffness of a composite
  /// plate.
  double stiffness_n = 0.0;
  double mass_kg_m2 = 0.0;            ///< Mass, also named m'
  double internal_loss_factor = 0.0;  ///< EtaInt, weighted with the thickness
};

/// The sums over `layers`, in their order. Several spans of layers that act as one plate are joined by the
/// caller.
/// @throws ArithmeticFailure without any thickness, with a Poisson's ratio of 1 or -1, or when a sum is not
/// finite
PlateStack SumLayers(std::span<const PlateLayer> layers);

/// Fc in Hz, the critical frequency of a thin plate in air (Cremer), for `mass_kg_m2` on the thickness and
/// stiffness of `stack`. The mass is asked for by itself because a plate may carry more than its own layers.
/// @throws ArithmeticFailure when mass or stiffness are not positive
double CriticalFrequency(const PlateStack& stack, double mass_kg_m2);

/// Bending in N·m, the bending stiffness: Sum_Eh2 Sum_h / 12.
double BendingStiffness(const PlateStack& stack);

}  // namespace velmar::models
