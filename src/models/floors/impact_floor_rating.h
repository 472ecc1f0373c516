#pragma once

#include <optional>

#include "acoustics/bands.h"
#include "acoustics/range_left.h"
#include "foundation/message.h"
#include "models/floors/impact_floor.h"

namespace velmar::models {

/// What the relation of a kind of floor says of one floor.
struct ImpactRelation {
  /// Ln,w in dB of the floor without a floating screed; nothing when the calculated rating stands.
  std::optional<double> lnw_db{};
  /// What to ask about before the relation is used: the floor lies outside this range.
  std::optional<acoustics::RangeLeft> left{};
};

/// The relation of the variant, a regression on measured floors over the surface mass (for hollow blocks
/// that of EN 12354-2, annex B), and whether the floor lies in its range, limits included.
/// @throws ArithmeticFailure when the mass is not positive
ImpactRelation FindImpactRelation(ImpactFloorVariant variant, double mass_kg_m2, double bearing_thickness_m);

/// Ln with the improvement taken off and moved by `excess_db`, the calculated rating less that of the
/// relation. The fixed spectrum of hollow blocks loses the weighted improvement in every band instead, and
/// is not moved: it already stands on its relation.
acoustics::Spectrum CorrectImpactLevel(ImpactFloorVariant variant, const acoustics::Spectrum& impact_level_db,
                                       const ScreedImprovement& improvement, double excess_db);

/// The floor's final curve and its single numbers.
struct ImpactFloorRating {
  acoustics::Spectrum impact_level_db{};
  double shift_db = 0.0;  ///< of the reference curve
  double lnw_db = 0.0;    ///< whole dB
  double ci_db = 0.0;     ///< whole dB, ties to even
};

/// Rates the floor, moves it onto its relation, takes the improvement off and rates it again (ISO 717-2).
/// @throws ArithmeticFailure when a level or a rating is not a finite number
ImpactFloorRating RateImpactFloor(ImpactFloorVariant variant, const ImpactFloorOutcome& outcome,
                                  const ImpactRelation& relation);

/// What the floor does for airborne sound, estimated from mass and resonance alone, unrounded dB.
struct AirborneEstimate {
  double rw_db = 0.0;
  double delta_rw_db = 0.0;  ///< by the floating screed (EN 12354-1, annex D, with 72); may be negative
};

/// @param resonance_hz f0 of the screed; 0 gives no improvement
/// @throws ArithmeticFailure when the mass is not positive
AirborneEstimate EstimateAirborne(double mass_kg_m2, double resonance_hz);

}  // namespace velmar::models
