#pragma once

#include <optional>
#include <variant>

#include "acoustics/bands.h"

namespace velmar::models {

// Heavy single elements after EN ISO 12354-1:2017, annexes B and C, in the air of the standard: c0 = 340 m/s,
// rho0 = 1.29 kg/m³, bands at their nominal centres.

/// One homogeneous element of masonry or concrete.
struct MonolithicElement {
  double length1_m = 0.0;               ///< 0.1 to 100
  double length2_m = 0.0;               ///< 0.1 to 100
  double thickness_m = 0.0;             ///< t of the bearing layer, 0.001 to 5
  double density_kg_m3 = 0.0;           ///< rho of the bearing layer, 10 to 30000
  double longitudinal_speed_m_s = 0.0;  ///< cL, quasi-longitudinal, of the bearing layer, 100 to 10000
  double internal_loss_factor = 0.0;    ///< eta_int, 1e-4 to 1
  double coating_mass_kg_m2 = 0.0;      ///< plaster and other layers that only weigh, 0 to 1000
};

/// Losses in a test opening: eta_int + m'/(485 sqrt f), formula C.5; made for up to 800 kg/m².
struct LaboratoryLosses {};

/// Losses in a building: eta_int + 2 rho0 c0 sigma/(2 pi f m') + c0/(pi² S sqrt(f fc)) sum(l alpha),
/// formula C.1.
struct InSituLosses {
  double perimeter_absorption_m = 0.0;  ///< sum of l_k alpha_k over the borders, 0 to 1000
};

/// eta_tot per band as found elsewhere, each 1e-4 to 10.
struct GivenLosses {
  acoustics::Spectrum total_loss_factor{};
};

using MonolithicLosses = std::variant<LaboratoryLosses, InSituLosses, GivenLosses>;

/// What thick elements do where shear joins bending.
enum class ThickWallForm {
  /// The plateau alone, tau at least (4 rho0 c0/(1.1 rho cL))² 0.02/eta_tot (formula B.10): the way of the
  /// standard's worked building.
  kPlateau,
  /// Besides, the critical frequency that rises with frequency (formulas B.7 to B.9):
  /// fc (x + sqrt(1 + x²)), x = 4.05 t f/cL, below fp = cL/(5.5 t), 2 fc (f/fp)³ above.
  kEffectiveCriticalFrequency,
};

/// How an element is mounted and calculated.
struct MonolithicSituation {
  MonolithicLosses losses = LaboratoryLosses{};
  ThickWallForm thick_wall = ThickWallForm::kPlateau;
  bool resonant_only = false;  ///< leaves forced waves out, as flanking paths want it
};

enum class MonolithicField {
  kLength1,
  kLength2,
  kThickness,
  kDensity,
  kLongitudinalSpeed,
  kInternalLossFactor,
  kCoatingMass,
  kPerimeterAbsorption,
  kTotalLossFactor,
};

/// The first value outside what the formulas take, with the range.
struct MonolithicRefusal {
  MonolithicField field{};
  double value = 0.0;
  double lowest = 0.0;
  double highest = 0.0;
};

struct MonolithicPrediction {
  acoustics::Spectrum reduction_index_db{};  ///< R, never below 0
  acoustics::Spectrum total_loss_factor{};   ///< eta_tot
  acoustics::Spectrum radiation_factor{};    ///< sigma of free waves
  double surface_mass_kg_m2 = 0.0;           ///< m'
  double critical_frequency_hz = 0.0;        ///< fc of the thin plate
  double plateau_frequency_hz = 0.0;         ///< fp
};

using MonolithicOutcome = std::variant<MonolithicPrediction, MonolithicRefusal>;

/// fc,eff in Hz at `frequency_hz` (above 0) of an element `thickness_m` thick (formulas B.7 to B.9).
double EffectiveCriticalFrequency(double frequency_hz, double critical_frequency_hz, double thickness_m,
                                  double longitudinal_speed_m_s);

/// R of `element` per band. The band that holds fc takes the formula for f = fc.
/// @return the refusal when a value lies outside its range; a prediction is always finite
MonolithicOutcome PredictMonolithic(const MonolithicElement& element,
                                    const MonolithicSituation& situation = {});

}  // namespace velmar::models
