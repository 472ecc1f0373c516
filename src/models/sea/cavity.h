#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/constructions.h"
#include "models/sea/band_average.h"
#include "models/sea/hz_spectrum.h"
#include "models/sea/layers.h"
#include "models/sea/per_hz_spectra.h"

namespace velmar::models {

using acoustics::SeaCavityType;

/// A porous fill.
struct SeaFill {
  std::string name{};
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  AbsorptionBands absorption{};
};

/// A mass layer hung in the cavity, with its damping sheet when it is ticked.
struct SeaCavityMass {
  double thickness_mm = 0.0;
  double density_kg_m3 = 0.0;
  double youngs_modulus_gpa = 0.0;
  double loss_factor = 0.0;
  double poissons_ratio = 0.0;
  std::optional<SeaDampingSheet> damping{};
};

/// The cavity's contents by slot. A slot beyond what the type shows is not read.
struct SeaCavity {
  SeaCavityType type = SeaCavityType::kEmpty;
  double depth_mm = 0.0;
  std::array<std::optional<SeaFill>, 3> fills{};
  std::array<std::optional<SeaCavityMass>, 2> masses{};
};

/// `cavity` without what its type does not show.
SeaCavity ShownCavity(const SeaCavity& cavity);

/// Thickness in mm of all that is shown in the cavity: fills, mass layers, their damping sheets.
double CavityContentsThickness(const SeaCavity& cavity);

/// The names of the fills shown of which an absorption band was not measured.
std::vector<std::string> FillsWithoutAbsorption(const SeaCavity& cavity);

/// What SeaCavityCombine() puts together; levels in dB.
struct SeaCavityParts {
  const HzSpectrum& first_mass_db;
  const HzSpectrum& second_mass_db;
  const HzSpectrum& fills_db;
  const HzSpectrum& first_bridge;   ///< transmission past the cavity, a ratio of powers
  const HzSpectrum& second_bridge;  ///< another one
  SeaMassPair masses{};
};

/// Level in dB at 1 to 6000 Hz that the cavity's contents add: both masses and the fills, below the resonance
/// of two masses their mass law, less what the bridges carry past; not below 0.
/// @throws ArithmeticFailure when two masses have no distance, or the bridges leave no balance
HzSpectrum SeaCavityCombine(const SeaCavityParts& parts);

/// The cavity's share of the wall, as levels.
struct SeaCavityLevels {
  HzSpectrum cavity_db{};
  HzSpectrum extra_power{};       ///< power ratio that its mass layers add to the heavier side; 0 without any
  double fill_thickness_m = 0.0;  ///< of all fills
};

/// SeaCavityCombine() of the cavity's own layers. The main thickness of the first mass layer stands in for
/// the distance of the two masses.
/// @throws ArithmeticFailure when a layer has no balance
SeaCavityLevels SeaCavityLayers(const SeaCavity& cavity, const SeaElementSize& size,
                                const HzSpectrum& first_bridge, const HzSpectrum& second_bridge);

/// The cavity's share of the wall, as power ratios.
struct SeaCavityPower {
  HzSpectrum cavity{};
  HzSpectrum extra{};
  bool has_extra = false;
};

/// SeaCavityLayers() as power ratios, with one bridge past the cavity.
SeaCavityPower CavityPower(const SeaCavity& cavity, const SeaElementSize& size, const HzSpectrum& bridge);

}  // namespace velmar::models
