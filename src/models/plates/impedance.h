#pragma once

#include "models/plates/porous_medium.h"

namespace velmar::models {

/// A thin infinite plate.
struct Plate {
  double mass_kg_m2 = 0.0;   ///< surface mass
  double bending_n_m = 0.0;  ///< bending stiffness
  double loss_factor = 0.0;
};

/// The space between plates: a porous layer in front of an air gap.
struct Cavity {
  double depth_m = 0.0;                   ///< of the air gap
  double porous_thickness_m = 0.0;        ///< of the porous layer
  double flow_resistivity_pa_s_m2 = 0.0;  ///< of the porous layer; never 0, not even without one
};

/// Impedance of the air at the angle of incidence `theta` (radians, below a right angle), Pa·s/m.
double AirImpedance(double theta);

/// Imaginary part, Pa·s/m, of the impedance of a thin plate (Cremer) at frequency `frequency_hz` and angle of
/// incidence `theta` (radians): inertia less stiffness.
double PlateImag(double frequency_hz, double theta, const Plate& plate);
/// Real part of the same impedance: the losses. It vanishes at normal incidence.
double PlateReal(double frequency_hz, double theta, const Plate& plate);

/// The porous layer of `cavity` at `frequency_hz`.
/// @throws ArithmeticFailure when the flow resistivity is not positive
PorousMedium FindPorousMedium(double frequency_hz, const Cavity& cavity);

/// Imaginary part, Pa·s/m, of the impedance of `cavity` at `frequency_hz` and angle of incidence `theta`. The
/// depth is not projected on the angle: the angle acts through the impedance of the air alone.
/// @throws ArithmeticFailure when the flow resistivity is not positive
double CavityImag(double frequency_hz, double theta, const Cavity& cavity);
/// Real part of the same impedance.
double CavityReal(double frequency_hz, double theta, const Cavity& cavity);

}  // namespace velmar::models
