#include "models/floors/impact_floor_rating.h"

#include <array>
#include <cstddef>

#include "acoustics/impact_rating.h"
#include "acoustics/logarithm.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"

namespace velmar::models {
namespace {

using acoustics::Log10;

enum class Bounded { kMass, kThickness };

/// Ln,w = constant - slope lg M, for floors whose mass or thickness lies from lowest to highest.
struct RelationRow {
  ImpactFloorVariant variant{};
  double constant = 0.0;
  double slope = 0.0;
  Bounded bounded{};
  double lowest = 0.0;
  double highest = 0.0;
  MessageRow question{};
};

constexpr std::array<RelationRow, 4> kRelations = {{
    {ImpactFloorVariant::kReinforcedConcrete, 183.0, 42.0, Bounded::kMass, 250.0, 500.0, kFloorMassRangeRow},
    {ImpactFloorVariant::kLightweightConcrete, 156.0, 32.0, Bounded::kMass, 100.0, 400.0,
     kLightweightFloorMassRangeRow},
    {ImpactFloorVariant::kHollowBlock, 164.0, 35.0, Bounded::kMass, 100.0, 600.0,
     kHollowBrickFloorMassRangeRow},
    {ImpactFloorVariant::kHollowBlockFixedLevel, 86.0, 0.0, Bounded::kThickness, 0.2, 0.3,
     kFloorThicknessRangeRow},
}};

}  // namespace

ImpactRelation FindImpactRelation(ImpactFloorVariant variant, double mass_kg_m2, double bearing_thickness_m) {
  ImpactRelation relation;
  for (const RelationRow& row : kRelations) {
    if (row.variant != variant) continue;
    relation.lnw_db = RequireFinite(row.constant - row.slope * Log10(mass_kg_m2), "relation");
    const bool mass = row.bounded == Bounded::kMass;
    const double value = mass ? mass_kg_m2 : bearing_thickness_m;
    if (!IsWithin(value, row.lowest, row.highest))
      relation.left = acoustics::RangeLeft{row.question,         value,
                                           row.lowest,           row.highest,
                                           mass ? "kg/m²" : "m", mass ? kRangeMassRow : kRangeThicknessRow};
  }
  return relation;
}

acoustics::Spectrum CorrectImpactLevel(ImpactFloorVariant variant, const acoustics::Spectrum& impact_level_db,
                                       const ScreedImprovement& improvement, double excess_db) {
  const bool fixed_level = variant == ImpactFloorVariant::kHollowBlockFixedLevel;
  acoustics::Spectrum corrected{};
  for (std::size_t band = 0; band < acoustics::kBandCount; ++band) {
    const double lowered = fixed_level ? improvement.delta_lnw_db : improvement.delta_db[band] + excess_db;
    corrected[band] = impact_level_db[band] - lowered;
  }
  return corrected;
}

ImpactFloorRating RateImpactFloor(ImpactFloorVariant variant, const ImpactFloorOutcome& outcome,
                                  const ImpactRelation& relation) {
  const double calculated =
      acoustics::ImpactRatingOfShift(acoustics::FindImpactShift(outcome.impact_level_db));
  const double excess = calculated - relation.lnw_db.value_or(calculated);

  ImpactFloorRating rating;
  rating.impact_level_db = CorrectImpactLevel(variant, outcome.impact_level_db, outcome.improvement, excess);
  rating.shift_db = acoustics::FindImpactShift(rating.impact_level_db);
  rating.lnw_db = acoustics::ImpactRatingOfShift(rating.shift_db);
  rating.ci_db = acoustics::FindImpactAdaptationTerm(rating.impact_level_db, rating.lnw_db);
  return rating;
}

AirborneEstimate EstimateAirborne(double mass_kg_m2, double resonance_hz) {
  AirborneEstimate estimate;
  estimate.rw_db = RequireFinite(23.0 * Log10(mass_kg_m2) - 8.0, "Rw");
  if (resonance_hz > 0.0) {
    estimate.delta_rw_db =
        RequireFinite(72.0 - (20.0 * Log10(resonance_hz) + estimate.rw_db / 2.0), "improvement of Rw");
  }
  return estimate;
}

}  // namespace velmar::models
