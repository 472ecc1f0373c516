#pragma once

#include <optional>

#include "acoustics/bands.h"
#include "acoustics/constructions.h"
#include "acoustics/range_left.h"
#include "foundation/message.h"
#include "models/relations/relation_input.h"

namespace velmar::models {

using acoustics::RelationId;

/// What a relation gives.
struct RelationValue {
  float rating_db = 0.0F;       ///< RwRelation
  float improvement_db = 0.0F;  ///< DeltaRw, by a floating screed; may be negative. 0 for all other relations
};

/// What to ask the user about before relation `id` is applied outside of what it was measured on: the first
/// range that `in` leaves, see IsWithin(). The further ranges are not looked at: one question is all a run
/// asks.
/// @return nothing inside of all ranges
/// @throws ArithmeticFailure when a quantity of a range cannot be formed
std::optional<acoustics::RangeLeft> FirstRangeLeft(RelationId id, const RelationInput& in);

/// The rating by relation `id`, formed in double and narrowed to single precision. Ranges are not checked.
/// @throws ArithmeticFailure for the logarithm of a mass or depth that is not positive
RelationValue EvaluateRelation(RelationId id, const RelationInput& in);

/// A spectrum with the shift of its reference curve.
struct ShiftedSpectrum {
  acoustics::Spectrum spectrum{};  ///< dB
  double shift = 0.0;              ///< X in whole dB
};

/// Moves a predicted curve onto the rating of a relation: every band by the exact difference of the ratings,
/// the shift of the reference curve by that difference rounded, ties to even. A rating found anew in the
/// moved spectrum may therefore differ from the one shown.
/// @param rated the curve of the physical model and its X
/// @param rating_db its Rw
/// @param relation_rating_db RwRelation, in single precision
/// @throws ArithmeticFailure when a value is not finite
ShiftedSpectrum ApplyRelation(const ShiftedSpectrum& rated, double rating_db, float relation_rating_db);

}  // namespace velmar::models
