#include "models/facades/composite_element.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <string>
#include <utility>

#include "acoustics/logarithm.h"
#include "acoustics/rating_spectra.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::models {
namespace {

// The absorption to which Dn,e is normalised, m².
constexpr double kReferenceAbsorption = 10.0;
constexpr std::array<double, 5> kTightnessCorrections = {0.0, 8.0, 6.0, 4.0, 2.0};

/// One part as the sums see it.
struct WeightedPart {
  const FacadePart* part = nullptr;
  double weight = 0.0;  ///< share of the area, or 10 m² over it
  double correction_db = 0.0;
};

double ComponentArea(const CompositeElementInput& input) {
  double sum = 0.0;
  for (const FacadeComponent& component : input.components) sum += std::abs(component.area_m2);
  return sum;
}

std::optional<CompositeRefusal> RefuseAreas(const CompositeElementInput& input) {
  if (ComponentArea(input) < std::abs(input.area_m2)) return std::nullopt;
  return CompositeRefusal{{{kComponentsFillFacadeRow}}};
}

std::optional<CompositeRefusal> RefuseMissingBands(const std::vector<WeightedPart>& parts) {
  for (const WeightedPart& weighted : parts) {
    for (std::size_t band = acoustics::kFirstRatedBand; band <= acoustics::kLastRatedBand; ++band) {
      if (weighted.part->bands_db[band] != 0.0) continue;
      CompositeRefusal refusal;
      for (const MessageRow& row : kMissingBandRows) refusal.message.push_back({row});
      return refusal;
    }
  }
  return std::nullopt;
}

std::vector<WeightedPart> WeighParts(const CompositeElementInput& input) {
  const double area = std::abs(input.area_m2);
  std::vector<WeightedPart> parts;
  parts.reserve(input.components.size() + 1);
  parts.push_back({.part = &input.opaque, .weight = (area - ComponentArea(input)) / area});
  for (const FacadeComponent& component : input.components) {
    const double correction = TightnessCorrection(component.tightness_class);
    const double component_area = std::abs(component.area_m2);
    if (component_area == 0.0) {
      parts.push_back({.part = &component.part, .weight = kReferenceAbsorption / area});
    } else {
      parts.push_back(
          {.part = &component.part, .weight = component_area / area, .correction_db = correction});
    }
  }
  return parts;
}

double MeanSurfaceMass(const CompositeElementInput& input) {
  const double area = std::abs(input.area_m2);
  double mass = input.opaque.surface_mass_kg_m2 * (area - ComponentArea(input));
  for (const FacadeComponent& component : input.components) {
    mass += component.part.surface_mass_kg_m2 * std::abs(component.area_m2);
  }
  return RequireFinite(mass / area, "mean surface mass");
}

double Transmitted(double weight, double level_db) { return weight * std::pow(10.0, -level_db / 10.0); }

double LevelOfShares(double sum) {
  if (!(sum > 0.0) || !std::isfinite(sum)) {
    throw ArithmeticFailure(kFacadeLevelsRow, "the parts of the facade let through " + std::to_string(sum));
  }
  return -10.0 * acoustics::Log10(sum);
}

double BandLevel(const std::vector<WeightedPart>& parts, std::size_t band) {
  double sum = 0.0;
  for (const WeightedPart& weighted : parts) {
    const double level = std::abs(weighted.part->bands_db[band]);
    if (level == 0.0) return 0.0;
    sum += Transmitted(weighted.weight, level - weighted.correction_db);
  }
  return LevelOfShares(sum);
}

/// `energies` as shares of their sum.
std::optional<std::vector<double>> Shared(std::vector<double> energies) {
  const double sum = std::accumulate(energies.begin(), energies.end(), 0.0);
  if (!(sum > 0.0) || !std::isfinite(sum)) return std::nullopt;
  for (double& energy : energies) energy /= sum;
  return energies;
}

}  // namespace

double TightnessCorrection(int tightness_class) {
  return kTightnessCorrections.at(static_cast<std::size_t>(tightness_class));
}

std::optional<double> ComponentSharePercent(double component_area_m2, double area_m2) {
  const double share = 100.0 * std::abs(component_area_m2) / std::abs(area_m2);
  if (!std::isfinite(share)) return std::nullopt;
  return share;
}

std::variant<CompositeSpectrum, CompositeRefusal> CalculateCompositeSpectrum(
    const CompositeElementInput& input) {
  if (auto refusal = RefuseAreas(input)) return *refusal;
  const std::vector<WeightedPart> parts = WeighParts(input);
  if (auto refusal = RefuseMissingBands(parts)) return *refusal;
  CompositeSpectrum outcome;
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    outcome.reduction_index_db[band] = BandLevel(parts, band);
  }
  outcome.surface_mass_kg_m2 = MeanSurfaceMass(input);
  return outcome;
}

std::variant<CompositeRating, CompositeRefusal> CalculateCompositeRating(const CompositeElementInput& input) {
  if (auto refusal = RefuseAreas(input)) return *refusal;
  double rw_sum = 0.0;
  double c_sum = 0.0;
  double ctr_sum = 0.0;
  for (const auto& [part, weight, correction_db] : WeighParts(input)) {
    rw_sum += Transmitted(weight, part->rating_db - correction_db);
    c_sum += Transmitted(weight, part->rating_db + part->c_db);
    ctr_sum += Transmitted(weight, part->rating_db + part->ctr_db);
  }
  CompositeRating outcome;
  outcome.rw_db = RoundToEven(LevelOfShares(rw_sum));
  outcome.c_db = RoundToEven(LevelOfShares(c_sum) - outcome.rw_db);
  outcome.ctr_db = RoundToEven(LevelOfShares(ctr_sum) - outcome.rw_db);
  outcome.surface_mass_kg_m2 = MeanSurfaceMass(input);
  return outcome;
}

std::optional<std::vector<double>> SharesByBands(const CompositeElementInput& input) {
  if (RefuseAreas(input)) return std::nullopt;
  const std::vector<WeightedPart> parts = WeighParts(input);
  if (RefuseMissingBands(parts)) return std::nullopt;
  std::vector<double> energies;
  for (const WeightedPart& weighted : parts) {
    double energy = 0.0;
    for (std::size_t j = 0; j < acoustics::kRatedBandCount; ++j) {
      const double level = std::abs(weighted.part->bands_db[j + acoustics::kFirstRatedBand]);
      energy += Transmitted(weighted.weight, level - weighted.correction_db - acoustics::kPinkNoise[j]);
    }
    energies.push_back(energy);
  }
  return Shared(std::move(energies));
}

std::optional<std::vector<double>> SharesByRating(const CompositeElementInput& input) {
  if (RefuseAreas(input)) return std::nullopt;
  std::vector<double> energies;
  for (const auto& [part, weight, correction_db] : WeighParts(input))
    energies.push_back(Transmitted(weight, part->rating_db - correction_db));
  return Shared(std::move(energies));
}

}  // namespace velmar::models
