#pragma once

#include <complex>
#include <vector>

#include "models/layered/connection.h"

namespace velmar::models {

enum class FillKind {
  kAir,
  kFibre,  ///< mineral wool and the like: an equivalent fluid with a limp frame
};

/// One layer between two leaves.
struct CavityFill {
  FillKind kind = FillKind::kAir;
  double thickness_m = 0.0;               ///< d, 0 and above
  double flow_resistivity_pa_s_m2 = 0.0;  ///< r, above 0; read for fibre
  double density_kg_m3 = 0.0;             ///< of the fibre, above 0; read for fibre
};

/// How the air of a cavity loses energy at its edges.
enum class CavityEdge {
  /// Between the studs or frames of a wall: a loss factor of 0.10 at all frequencies.
  kFramed,
  /// Between panes: alpha c0 U / (pi S omega) with alpha = 0.5, the share that a two-dimensional field leaves
  /// at its edges (mean free path pi S/U; after the lateral absorption of Davy 2009).
  kGlazed,
};

/// What lies between two leaves, from the source side to the receiving side.
struct LayeredCavity {
  std::vector<CavityFill> fills{};  ///< may be empty: the leaves touch
  CavityEdge edge = CavityEdge::kFramed;
  std::vector<Connection> connections{};
};

/// Effective density and bulk modulus of a fluid for the time factor exp(+j omega t).
struct EquivalentFluid {
  std::complex<double> density_kg_m3{};
  std::complex<double> bulk_modulus_pa{};
};

/// The fluid of `fill` at `frequency_hz` (above 0).
///
/// Fibre: the equations of Allard and Champoux (1992) for rho0 f/r, in the form for 20 °C, isothermal at low
/// frequencies; the frame moves with the air (limp frame, Panneton 2007).
/// @param edge_loss_factor eta of the air between the leaves; fibre brings its own losses
EquivalentFluid FillFluid(const CavityFill& fill, double frequency_hz, double edge_loss_factor);

/// The loss factor of a cavity's air at `frequency_hz` in an element of `area_m2` and `perimeter_m`.
double EdgeLossFactor(CavityEdge edge, double frequency_hz, double area_m2, double perimeter_m);

}  // namespace velmar::models
