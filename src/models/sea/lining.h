#pragma once

#include <array>
#include <optional>

#include "acoustics/bands.h"
#include "acoustics/constructions.h"
#include "models/sea/cavity.h"
#include "models/sea/layers.h"

namespace velmar::models {

using acoustics::LiningVariant;

/// Whether the variant is rated by its mass-spring-mass resonance alone, without a spectrum.
constexpr bool IsGeneric(LiningVariant variant) {
  return variant == LiningVariant::kGenericLining || variant == LiningVariant::kGenericCeiling;
}

/// Whether the variant hangs from a floor rather than standing before a wall.
constexpr bool IsCeiling(LiningVariant variant) {
  return variant == LiningVariant::kGenericCeiling || variant == LiningVariant::kCeiling;
}

/// Band levels as they were entered; nothing where the box is blank.
using EnteredSpectrum = std::array<std::optional<double>, acoustics::kBandCount>;

/// A lining or suspended ceiling and the element it is put before.
struct LiningInput {
  LiningVariant variant = LiningVariant::kDirectLining;
  std::optional<float> base_rw_db{};  ///< `Text25`
  float base_mass_kg_m2 = 0.0F;
  EnteredSpectrum base_spectrum_db{};  ///< `Text13`; not read by the generic variants
  SeaSide layers{};
  SeaCavity cavity{};                        ///< depth not less than its contents, see RaisedCavityDepth()
  int hanger = 0;                            ///< `ComboTipoAppendino`, 0 to 2: rigid, simple, spring
  std::optional<double> support_distance{};  ///< `Text8`, framed lining only
};

/// The base element's spectrum with its outermost bands completed.
struct BaseSpectrum {
  acoustics::Spectrum level_db{};
  bool is_complete = true;  ///< false when a band from 100 Hz to 3150 Hz is missing or not above 0
};

/// Bands below 100 Hz and above 3150 Hz count from the inside out as far as they are above 0; from the first
/// missing one on they are 2 dB.
BaseSpectrum CompleteBaseSpectrum(const EnteredSpectrum& entered);

/// The number of connections that a variant is calculated with. Nothing when it is not known: a support
/// distance left blank, a hanger that does not exist.
std::optional<double> ConnectionCount(const LiningInput& input);

/// What an energy balance of a lining comes to; see RateLining().
struct LiningOutcome {
  acoustics::Spectrum reduction_index_db{};  ///< of the base element with its lining
  double critical_frequency_hz = 0.0;        ///< the highest of the lining's layers
  double surface_mass_kg_m2 = 0.0;           ///< of the lining
};

/// Sound reduction index of the base element with a lining of 1.2 m by 2.8 m, whatever the size of the
/// element, by energy balance at every Hz.
/// @throws ArithmeticFailure when the lining has no layer or something has no balance
/// @throws std::invalid_argument for a generic variant and when CheckLining() has an objection
LiningOutcome CalculateLining(const LiningInput& input);

/// Surface mass in kg/m² that a generic variant is rated with: the layers, their damping sheets, and the
/// first fill shown.
double GenericLiningMass(const LiningInput& input);

}  // namespace velmar::models
