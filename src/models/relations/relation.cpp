#include "models/relations/relation.h"

#include <string>

#include "foundation/failure.h"
#include "foundation/rounding.h"
#include "models/relations/relation_quantities.h"
#include "models/relations/relation_table.h"

namespace velmar::models {
namespace {

float Narrow(double value) {
  RequireFinite(value, "the value of a relation");
  return static_cast<float>(value);
}

}  // namespace

std::optional<acoustics::RangeLeft> FirstRangeLeft(RelationId id, const RelationInput& in) {
  for (const RelationRange& range : FindRelation(id).ranges) {
    const double quantity = RequireFinite(range.quantity(in), "a quantity of a relation");
    if (IsWithin(quantity, range.lowest, range.highest)) continue;
    const MessagePiece check =
        range.words != nullptr ? MessagePiece(std::string(range.words)) : MessagePiece(range.question);
    return acoustics::RangeLeft{check,         quantity,           range.lowest,
                                range.highest, range.measure.unit, range.measure.quantity};
  }
  return std::nullopt;
}

RelationValue EvaluateRelation(RelationId id, const RelationInput& in) {
  RelationValue value;
  value.rating_db = Narrow(FindRelation(id).rating(in));
  if (id == RelationId::kFloatingScreed) {
    value.improvement_db = Narrow(FloatingScreedImprovement(FindFloatingScreed(in)));
  }
  return value;
}

ShiftedSpectrum ApplyRelation(const ShiftedSpectrum& rated, double rating_db, float relation_rating_db) {
  const double delta =
      RequireFinite(rating_db - static_cast<double>(relation_rating_db), "the difference of two ratings");
  ShiftedSpectrum moved = rated;
  moved.shift -= RoundToEven(delta);
  for (double& band : moved.spectrum) band -= delta;
  return moved;
}

}  // namespace velmar::models
