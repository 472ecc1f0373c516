#include "models/relations/apply_relation.h"

#include "foundation/failure.h"
#include "foundation/rounding.h"

namespace velmar::models {

ShiftedSpectrum ApplyRelation(const ShiftedSpectrum& rated, double rating_db, float relation_rating_db) {
  const double delta =
      RequireFinite(rating_db - static_cast<double>(relation_rating_db), "the difference of two ratings");
  ShiftedSpectrum moved = rated;
  moved.shift -= RoundToEven(delta);
  for (double& band : moved.spectrum) band -= delta;
  return moved;
}

}  // namespace velmar::models
