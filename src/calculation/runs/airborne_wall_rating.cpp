#include "calculation/runs/airborne_wall_rating.h"

#include <optional>
#include <string>
#include <utility>

#include "acoustics/airborne_rating.h"
#include "foundation/message_rows.h"
#include "models/relations/relation.h"

namespace velmar::calculation {

bool AskToLeaveRange(const RunRequest& request, const acoustics::RangeLeft& range,
                     elements::ResultSet& result) {
  MessageLine question = {range.check};
  // A check of a choice says all there is to say.
  if (!range.unit.empty()) {
    question.insert(question.end(), {std::string(" "), kThisElementRow, std::string(" ")});
    for (MessagePiece& piece : acoustics::RangeText(range)) question.push_back(std::move(piece));
    question.emplace_back(std::string("."));
  }
  if (!request.ask({std::move(question), {kGoOnRow}})) return false;
  result.ranges_left.push_back(range);
  return true;
}

RunOutcome Declined() { return {.status = RunStatus::kDeclined}; }

RunOutcome RateWall(const RunRequest& request, elements::ResultSet result,
                    const models::RelationInput& relation) {
  models::ShiftedSpectrum rated{.spectrum = result.spectrum.value(),
                                .shift = acoustics::FindShift(result.spectrum.value())};
  const double model_rating = acoustics::RatingOfShift(rated.shift);
  result.relation_rating = model_rating;
  if (const auto id = RowOf(request.calculation).relation) {
    const auto left = models::FirstRangeLeft(*id, relation);
    if (left && !AskToLeaveRange(request, *left, result)) return Declined();
    const models::RelationValue value = models::EvaluateRelation(*id, relation);
    rated = models::ApplyRelation(rated, model_rating, value.rating_db);
    result.relation_rating = static_cast<double>(value.rating_db);
    if (*id == models::RelationId::kFloatingScreed)
      result.delta_rw = static_cast<double>(value.improvement_db);
  }
  result.spectrum = rated.spectrum;
  result.shift = rated.shift;
  result.rw = acoustics::RatingOfShift(rated.shift);
  const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(rated.spectrum, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return {.status = RunStatus::kDone, .result = result};
}

}  // namespace velmar::calculation
