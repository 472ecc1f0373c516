#include "models/floors/footfall.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

#include "acoustics/impact_numbers.h"
#include "models/floors/floor_mass.h"
#include "models/plates/free_wave_radiation.h"

namespace velmar::models {
namespace {

using acoustics::BandCentre;
using acoustics::kBandCount;
using acoustics::Spectrum;

constexpr double kAirImpedance = 413.0;  // Pa s/m, that of EN ISO 12354-1
/// fc m' of the concrete that the standard's 155 dB belong to: 2300 kg/m³, 3500 m/s.
constexpr double kStandardConcrete = kStandardSpeedOfSound * kStandardSpeedOfSound * 2300.0 / (1.8 * 3500.0);
constexpr double kHammerKg = 0.5;
constexpr double kHammerRadiusM = 0.015;

double StiffnessPa(const PlateLayer& layer) {
  return layer.youngs_modulus_gpa * 1e9 / (1.0 - layer.poissons_ratio * layer.poissons_ratio);
}

bool Sound(const PlateLayer& layer) {
  return layer.multiplicity >= 1 && layer.thickness_mm > 0.0 && layer.density_kg_m3 > 0.0 &&
         layer.youngs_modulus_gpa > 0.0 && layer.loss_factor >= 0.0 && layer.poissons_ratio >= 0.0 &&
         layer.poissons_ratio < 0.5 &&
         std::isfinite(SurfaceMass(std::span(&layer, 1)) * StiffnessPa(layer) * (1.0 + layer.loss_factor));
}

/// B in N·m of layers bonded to one another, about their neutral axis, and their loss factor weighted with
/// what each of them contributes to B.
struct Bending {
  double stiffness_n_m = 0.0;
  double loss_factor = 0.0;
};

Bending BondedBending(std::span<const PlateLayer> layers) {
  double extension = 0.0;
  double moment = 0.0;
  double z = 0.0;
  for (const PlateLayer& layer : layers) {
    const double h = LayerThickness(layer);
    extension += StiffnessPa(layer) * h;
    moment += StiffnessPa(layer) * h * (z + h / 2.0);
    z += h;
  }
  Bending bending;
  const double neutral = moment / extension;
  z = 0.0;
  for (const PlateLayer& layer : layers) {
    const double h = LayerThickness(layer);
    const double arm = z + h / 2.0 - neutral;
    const double part = StiffnessPa(layer) * (h * h * h / 12.0 + h * arm * arm);
    bending.stiffness_n_m += part;
    bending.loss_factor += part * layer.loss_factor;
    z += h;
  }
  bending.loss_factor /= bending.stiffness_n_m;
  return bending;
}

FootfallPlate PlateOf(const std::vector<PlateLayer>& layers, const PlateDimensions& dimensions) {
  const Bending bending = BondedBending(layers);
  FootfallPlate plate;
  plate.mass_kg_m2 = SurfaceMass(layers);
  plate.critical_frequency_hz = kStandardSpeedOfSound * kStandardSpeedOfSound / (2.0 * std::numbers::pi) *
                                std::sqrt(plate.mass_kg_m2 / bending.stiffness_n_m);
  plate.internal_loss_factor = bending.loss_factor;
  plate.dimensions = dimensions;
  return plate;
}

double Radiation(const FootfallPlate& plate, double frequency_hz) {
  return FreeWaveRadiation(frequency_hz, plate.critical_frequency_hz, plate.dimensions,
                           kStandardSpeedOfSound);
}

std::optional<FootfallRefusal> RefusalOf(const FootfallInput& input) {
  if (input.bearing.empty()) return FootfallRefusal::kNoBearing;
  for (const auto* layers : {&input.bearing, &input.floating}) {
    if (!std::all_of(layers->begin(), layers->end(), Sound)) return FootfallRefusal::kLayer;
  }
  const auto usable = [](const ResilientMat& mat) {
    return mat.multiplicity >= 1 && mat.dynamic_stiffness_mn_m3 >= 0.0 &&
           std::isfinite(mat.dynamic_stiffness_mn_m3);
  };
  if (!std::all_of(input.resilient.begin(), input.resilient.end(), usable))
    return FootfallRefusal::kStiffness;
  for (const double side : {input.side_a_m, input.side_b_m}) {
    if (!(side > 0.0) || !std::isfinite(side)) return FootfallRefusal::kDimensions;
  }
  return std::nullopt;
}

}  // namespace

Spectrum LaboratoryLossFactor(const FootfallPlate& plate) {
  Spectrum loss{};
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const double f = BandCentre(band);
    loss[band] = plate.internal_loss_factor +
                 kAirImpedance * Radiation(plate, f) / (std::numbers::pi * f * plate.mass_kg_m2) +
                 plate.mass_kg_m2 / (485.0 * std::sqrt(f));
  }
  return loss;
}

Spectrum BareFloorLevel(const FootfallPlate& plate, const Spectrum& total_loss_factor) {
  const double mobility = plate.critical_frequency_hz * plate.mass_kg_m2 / kStandardConcrete;
  Spectrum level{};
  for (std::size_t band = 0; band < kBandCount; ++band) {
    const double f = BandCentre(band);
    const double reverberation_s = 2.2 / (f * total_loss_factor[band]);
    level[band] = 155.0 - 30.0 * std::log10(plate.mass_kg_m2) + 10.0 * std::log10(mobility) +
                  10.0 * std::log10(reverberation_s * Radiation(plate, f) * f / 1000.0);
  }
  return level;
}

FootfallImprovement FindFootfallImprovement(double floating_mass_kg_m2, double stiffness_mn_m3) {
  FootfallImprovement improvement;
  if (stiffness_mn_m3 <= 0.0) return improvement;
  double slope = 40.0;
  if (floating_mass_kg_m2 <= 0.0) {
    const double contact_n_m = stiffness_mn_m3 * 1e6 * std::numbers::pi * kHammerRadiusM * kHammerRadiusM;
    improvement.topping = FloorTopping::kSoftCovering;
    improvement.resonance_hz = std::sqrt(contact_n_m / kHammerKg) / (2.0 * std::numbers::pi);
  } else {
    const bool screed = floating_mass_kg_m2 >= kLightestScreedKgM2;
    if (screed) slope = 30.0;
    improvement.topping = screed ? FloorTopping::kScreed : FloorTopping::kLightLayer;
    improvement.resonance_hz = 160.0 * std::sqrt(stiffness_mn_m3 / floating_mass_kg_m2);
  }
  for (std::size_t band = 0; band < kBandCount; ++band) {
    improvement.delta_db[band] =
        std::max(0.0, slope * std::log10(BandCentre(band) / improvement.resonance_hz));
  }
  return improvement;
}

std::variant<FootfallPrediction, FootfallRefusal> PredictFootfall(const FootfallInput& input) {
  if (const auto refusal = RefusalOf(input)) return *refusal;
  const double stiffness = CombinedDynamicStiffness(input.resilient);
  std::vector<PlateLayer> plate = input.bearing;
  if (stiffness == 0.0) plate.insert(plate.end(), input.floating.begin(), input.floating.end());

  FootfallPrediction prediction;
  prediction.plate = PlateOf(plate, {.a_m = input.side_a_m, .b_m = input.side_b_m});
  prediction.improvement = FindFootfallImprovement(SurfaceMass(input.floating), stiffness);
  prediction.bare_level_db = BareFloorLevel(prediction.plate, LaboratoryLossFactor(prediction.plate));
  for (std::size_t band = 0; band < kBandCount; ++band) {
    prediction.impact_level_db[band] = prediction.bare_level_db[band] - prediction.improvement.delta_db[band];
  }
  if (prediction.improvement.topping != FloorTopping::kNone) {
    prediction.improvement_w_db =
        acoustics::WeightedImpactImprovement(acoustics::LevelsOf(prediction.improvement.delta_db));
  }
  return prediction;
}

}  // namespace velmar::models
