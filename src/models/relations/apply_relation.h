#pragma once

#include "acoustics/bands.h"

namespace velmar::models {

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
