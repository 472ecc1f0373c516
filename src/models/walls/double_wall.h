#pragma once

#include <vector>

#include "acoustics/bands.h"
#include "acoustics/constructions.h"
#include "models/plates/loss_factor.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

using acoustics::CavityKind;

/// Equal sheets of one material in a cavity.
struct CavityLayer {
  int multiplicity = 1;
  double thickness_mm = 0.0;  ///< of one sheet
  bool absorbing = false;     ///< sound-absorbing: its flow resistance counts; otherwise solid
  double youngs_modulus_gpa = 0.0;
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  double density_kg_m3 = 0.0;
  double flow_resistance_pa_s_m = 0.0;  ///< Rs
};

/// Two leaves with a cavity between them.
struct DoubleWallInput {
  std::vector<PlateLayer> leaf1;  ///< 1 to 10 layers
  std::vector<PlateLayer> leaf2;  ///< 1 to 10 layers
  PlateDimensions dimensions;
  double cavity_depth_m = 0.0;
  CavityKind cavity_kind = CavityKind::kEmpty;
  std::vector<CavityLayer> cavity_layers;  ///< read with CavityKind::kGenericMaterial alone
};

/// What the model of a leaf leaves behind.
struct LeafResult {
  double mass_kg_m2 = 0.0;
  double bending_n_m = 0.0;
  double internal_loss_factor = 0.0;
  double critical_frequency_hz = 0.0;
};

/// What the model of a double wall leaves behind.
struct DoubleWallResult {
  acoustics::Spectrum spectrum{};      ///< R, dB
  double critical_frequency_hz = 0.0;  ///< Fc for display: the mean of the leaves
  double resonance_hz = 0.0;           ///< F0, mass-air-mass
  LeafResult leaf1;                    ///< its mass is m1
  LeafResult leaf2;                    ///< its mass is m2
};

/// The airborne insulation of a double wall: two plates, or three with a solid layer in the cavity, at the 21
/// band centres. Below half of the mass-air-mass frequency it is never better than the joint plate.
/// @throws ArithmeticFailure when thickness, mass, stiffness or a dimension of a leaf, the cavity's depth or
/// an absorbing layer's thickness is missing
DoubleWallResult CalculateDoubleWall(const DoubleWallInput& input);

}  // namespace velmar::models
