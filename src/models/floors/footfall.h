#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "acoustics/bands.h"
#include "models/floors/resilient_mats.h"
#include "models/plates/loss_factor.h"
#include "models/plates/plate_layer.h"

namespace velmar::models {

// The impact sound of a floor after EN ISO 12354-2: level of the bare floor less the improvement of what lies
// on it. It stands beside the older calculation of floors, whose formulas saved results depend on.

/// The speed of sound in the air of EN ISO 12354, m/s.
inline constexpr double kStandardSpeedOfSound = 340.0;

/// A floor as it is built, all its layers of one size.
struct FootfallInput {
  std::vector<PlateLayer> bearing{};      ///< bonded to one another, from below
  std::vector<PlateLayer> floating{};     ///< above the resilient layers; part of the plate without any
  std::vector<ResilientMat> resilient{};  ///< those with a dynamic stiffness take part
  double side_a_m = 0.0;
  double side_b_m = 0.0;
};

/// The bare floor as one plate.
struct FootfallPlate {
  double mass_kg_m2 = 0.0;             ///< m'
  double critical_frequency_hz = 0.0;  ///< fc, thin plate
  double internal_loss_factor = 0.0;
  PlateDimensions dimensions{};
};

/// What lies on the bare floor, and so how its improvement grows with the frequency.
enum class FloorTopping {
  kNone,
  kScreed,       ///< from kLightestScreedKgM2 on: 30 lg(f / f0)
  kLightLayer,   ///< dry floors, asphalt, tiles and laminate on a mat: 40 lg(f / f0)
  kSoftCovering  ///< a resilient layer that the hammers meet directly: 40 lg(f / f0)
};

/// Screeds of sand and cement weigh 60 to 160 kg/m² in EN ISO 12354-2, annex C; what is lighter behaves as an
/// infinite plate.
inline constexpr double kLightestScreedKgM2 = 60.0;

/// The improvement by a topping, never negative.
struct FootfallImprovement {
  FloorTopping topping = FloorTopping::kNone;
  double resonance_hz = 0.0;       ///< f0; 0 without a topping
  acoustics::Spectrum delta_db{};  ///< Delta L; 0 below the resonance
};

/// A floor as predicted, levels in dB.
struct FootfallPrediction {
  FootfallPlate plate{};
  FootfallImprovement improvement{};
  acoustics::Spectrum bare_level_db{};       ///< Ln of the plate alone
  acoustics::Spectrum impact_level_db{};     ///< Ln of the floor
  std::optional<double> improvement_w_db{};  ///< Delta Lw of ISO 717-2, whole dB; nothing without a topping
};

/// Why nothing is predicted.
enum class FootfallRefusal {
  kNoBearing,   ///< no bearing layer
  kLayer,       ///< a layer without thickness, density or stiffness, or with a value that cannot be
  kStiffness,   ///< a dynamic stiffness below 0 or without an end
  kDimensions,  ///< a side that is not above 0
};

/// Ln of a floor in a laboratory without flanking, or why there is none.
///
/// The bearing layers are one plate bent about its neutral axis. The floating layers count by their mass; the
/// resilient ones by s', in series. Neither ceilings nor beams are seen: the prediction is that of a massive
/// slab, and for floors of beams it is none.
std::variant<FootfallPrediction, FootfallRefusal> PredictFootfall(const FootfallInput& input);

/// Ln per band of a plate under the tapping machine:
///
///   Ln = 155 - 30 lg m' + 10 lg(fc m' / K) + 10 lg(Ts sigma f / 1000),  Ts = 2.2 / (f eta)
///
/// The first and the last two terms are EN ISO 12354-2, annex B, meant for heavy concrete. The force of the
/// hammers depends on the mobility of the plate, which is that of the standard's concrete (2300 kg/m³, 3500
/// m/s) where fc m' = K = 42 200; the second term carries the formula to plates of other materials
/// (Cremer and Heckl, mobility of an infinite plate). sigma of free waves after EN ISO 12354-1, annex B.
/// @param total_loss_factor eta per band, above 0
acoustics::Spectrum BareFloorLevel(const FootfallPlate& plate, const acoustics::Spectrum& total_loss_factor);

/// The total loss factor of `plate` in a laboratory: internal, by radiation to both sides, and m' / (485
/// sqrt(f)) at the edges (EN ISO 12354-1, annex C, for up to 800 kg/m²).
acoustics::Spectrum LaboratoryLossFactor(const FootfallPlate& plate);

/// Delta L of a topping of `floating_mass_kg_m2` on `stiffness_mn_m3`: 30 or 40 lg(f / f0) above
/// f0 = 160 sqrt(s' / m') and nothing below (EN ISO 12354-2, annex C; Cremer). Without a mass the hammers
/// meet the resilient layer: 40 lg(f / f0) above the resonance of a hammer, 0,5 kg and 30 mm wide, on the
/// layer (Hopkins, Sound Insulation, 2007; Vigran, Building Acoustics, 2008). None without a stiffness.
FootfallImprovement FindFootfallImprovement(double floating_mass_kg_m2, double stiffness_mn_m3);

}  // namespace velmar::models
