#pragma once

#include <array>

#include "models/sea/hz_spectrum.h"

namespace velmar::models {

/// One sheet of a leaf. A sheet that is absent has zeros throughout.
struct SeaSheet {
  double thickness_m = 0.0;
  double youngs_modulus_pa = 0.0;
  double density_kg_m3 = 0.0;
};

/// The radiation efficiency of a leaf in a single wall stays below this...
inline constexpr double kSingleWallRadiationCap = 1.0;
/// ...and below this in a double wall, a lining and a cavity. The difference is wanted.
inline constexpr double kDoubleWallRadiationCap = 0.8;

/// A leaf: its main sheet and up to two damping sheets on it.
struct SeaPlateInput {
  double length_a_m = 0.0;
  double length_b_m = 0.0;
  std::array<SeaSheet, 3> sheets{};
  double poissons_ratio = 0.0;                     ///< of the main sheet
  double radiation_cap = kSingleWallRadiationCap;  ///< above 0, at most 1
};

/// Why a leaf has no radiation efficiency.
enum class SeaPlateFault {
  kNone,
  kNoBendingWave,      ///< no stiffness, no mass, no size
  kCoincidenceOnGrid,  ///< the critical frequency is a whole number of Hz, where the formulas have a pole
};

/// What the energy balance needs of a leaf. After a fault every number is zero, so that a balance built on it
/// fails.
struct SeaPlate {
  HzSpectrum radiation_efficiency{};    ///< from 1 Hz on
  double critical_frequency_hz = 0.0;   ///< coincidence
  double longitudinal_speed_m_s = 0.0;  ///< of the main sheet
  double surface_mass_kg_m2 = 0.0;      ///< of all sheets
  double thickness_m = 0.0;             ///< of all sheets
  SeaPlateFault fault = SeaPlateFault::kNone;
};

/// Bending stiffness and radiation efficiency of a leaf, after Maidanik and Cremer: corner and edge modes
/// below coincidence, a plateau at coincidence, supersonic radiation above.
///
/// The efficiency is chosen by five scans over the frequencies, each of which keeps the last frequency at
/// which its branch applied; the next begins one above it, or at 1 Hz when the branch never applied. A
/// frequency that no scan claims radiates nothing.
///
/// @return numbers or a fault; never throws
SeaPlate SeaPlateRadiation(const SeaPlateInput& input);

}  // namespace velmar::models
