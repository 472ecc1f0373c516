#pragma once

#include <array>

#include "models/sea/bridges.h"
#include "models/sea/layers.h"

namespace velmar::models {

/// What the energy balance of one side of a double wall comes to.
struct SeaSideBalance {
  HzSpectrum power_ratio{};                           ///< sum over the layers
  std::array<SeaPlate, kSeaLayerSlots> plates{};      ///< by slot; zeros where it is empty
  std::array<double, kSeaLayerSlots> loss_factors{};  ///< internal, with damping, by slot
  double surface_mass_kg_m2 = 0.0;
  double thickness_m = 0.0;  ///< with damping sheets
  double loss_factor_sum = 0.0;
  std::size_t heaviest_slot = 0;  ///< the first of equals
};

/// Balance of one side: the power ratios of its layers add up.
/// @throws ArithmeticFailure when the side has no layer or a layer has no balance
void BalanceSide(const SeaSide& side, const SeaElementSize& size, SeaSideBalance& balance);

/// The highest critical frequency of the layers, Hz; -1 without layers.
double HighestCriticalFrequency(const SeaSideBalance& balance);

/// Internal loss factor times main thickness in m, summed over the layers.
double LossFactorTimesThickness(const SeaSide& side);

/// LossFactorTimesThickness() over the thickness of an element.
/// @throws ArithmeticFailure when the element has no thickness
double MeanLossFactor(double loss_factor_times_thickness_m, double total_thickness_mm);

}  // namespace velmar::models
