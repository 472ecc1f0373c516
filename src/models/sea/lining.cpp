#include "models/sea/lining.h"

#include <cmath>
#include <stdexcept>

#include "models/sea/band_average.h"
#include "models/sea/bridges.h"
#include "models/sea/lining_checks.h"
#include "models/sea/power_ratio.h"
#include "models/sea/side.h"
#include "models/sea/wall_assembly.h"

namespace velmar::models {
namespace {

constexpr SeaElementSize kLiningSize{.length_a_m = 1.2, .length_b_m = 2.8};
constexpr double kMissingLevel = 2.0;
constexpr double kRigidConnections = 3.0;
constexpr std::array<double, 3> kHangerConnections = {kRigidConnections, 2.0, 0.0};

bool IsPositive(const std::optional<double>& value) { return value && *value > 0.0; }

/// Band means of the base element above the mass law, where it adds to the lining decibel by decibel.
acoustics::Spectrum BaseBands(const HzSpectrum& base_db, std::size_t mass_law_end) {
  HzSpectrum above = base_db;
  for (std::size_t f = 0; f <= mass_law_end; ++f) above[f] = 0.0;
  return MeanOfBands(above);
}

HzSpectrum Ones() {
  HzSpectrum ones;
  ones.fill(1.0);
  return ones;
}

acoustics::Spectrum Bands(const HzSpectrum& base_db, HzSpectrum& lining_power, const SeaCavityPower& cavity,
                          const SeaMassPair& masses) {
  const bool base_takes_extra = cavity.has_extra && masses.first_kg_m2 >= masses.second_kg_m2;
  if (base_takes_extra) {
    HzSpectrum base_power = PowerRatiosOf(base_db);
    AddExtraPower(cavity, base_power);
    return MeanLevelOfBands(TotalPower(base_power, lining_power, cavity, masses));
  }
  AddExtraPower(cavity, lining_power);
  acoustics::Spectrum bands = MeanLevelOfBands(TotalPower(Ones(), lining_power, cavity, masses));
  const acoustics::Spectrum base = BaseBands(base_db, LastMassLawHz(masses));
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) bands[band] += base[band];
  return bands;
}

}  // namespace

BaseSpectrum CompleteBaseSpectrum(const EnteredSpectrum& entered) {
  std::size_t first = acoustics::kFirstRatedBand;
  while (first > 0 && IsPositive(entered[first - 1])) --first;
  std::size_t last = acoustics::kLastRatedBand;
  while (last + 1 < acoustics::kBandCount && IsPositive(entered[last + 1])) ++last;

  BaseSpectrum base;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    if (band < first || band > last) {
      base.level_db[band] = kMissingLevel;
    } else if (IsPositive(entered[band])) {
      base.level_db[band] = *entered[band];
    } else {
      base.is_complete = false;
    }
  }
  return base;
}

std::optional<double> ConnectionCount(const LiningInput& input) {
  switch (input.variant) {
    case LiningVariant::kFramedLining:
      return input.support_distance;
    case LiningVariant::kCeiling:
      if (input.hanger < 0 || input.hanger >= static_cast<int>(kHangerConnections.size()))
        return std::nullopt;
      return kHangerConnections[static_cast<std::size_t>(input.hanger)];
    case LiningVariant::kDirectLining:
    case LiningVariant::kGenericLining:
    case LiningVariant::kGenericCeiling:
      break;
  }
  return kRigidConnections;
}

LiningOutcome CalculateLining(const LiningInput& input) {
  if (IsGeneric(input.variant) || !CheckLining(input).empty()) {
    throw std::invalid_argument("the lining has not passed its check");
  }
  SeaSideBalance lining;
  BalanceSide(input.layers, kLiningSize, lining);
  const SeaPlate& heaviest = lining.plates[lining.heaviest_slot];
  HzSpectrum coupling{};
  SeaLineBridgeCoupling({.surface_mass_kg_m2 = lining.surface_mass_kg_m2,
                         .loss_factor = lining.loss_factor_sum,
                         .critical_frequency_hz = heaviest.critical_frequency_hz,
                         .count = *ConnectionCount(input),
                         .length_m = kLiningSize.length_b_m},
                        heaviest.radiation_efficiency, coupling);
  AddBridge(coupling, lining.power_ratio);
  const SeaCavityPower cavity = CavityPower(input.cavity, kLiningSize, coupling);
  const SeaMassPair masses{.first_kg_m2 = static_cast<double>(input.base_mass_kg_m2),
                           .second_kg_m2 = lining.surface_mass_kg_m2,
                           .distance_m = input.cavity.depth_mm * 0.001};
  const HzSpectrum base_db = SeaSpectrumPerHz(CompleteBaseSpectrum(input.base_spectrum_db).level_db);
  return {.reduction_index_db = Bands(base_db, lining.power_ratio, cavity, masses),
          .critical_frequency_hz = HighestCriticalFrequency(lining),
          .surface_mass_kg_m2 = lining.surface_mass_kg_m2};
}

double GenericLiningMass(const LiningInput& input) {
  const auto mass = [](const auto& layer) { return layer.thickness_mm / 1000.0 * layer.density_kg_m3; };
  double sum_kg_m2 = 0.0;
  for (const auto& layer : input.layers) {
    if (!layer) continue;
    sum_kg_m2 += mass(*layer);
    for (const auto& sheet : layer->damping) {
      if (sheet) sum_kg_m2 += mass(*sheet);
    }
  }
  const SeaCavity shown = ShownCavity(input.cavity);
  if (shown.fills[0]) sum_kg_m2 += mass(*shown.fills[0]);
  return sum_kg_m2;
}

}  // namespace velmar::models
