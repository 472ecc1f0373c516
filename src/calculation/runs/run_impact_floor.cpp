#include "calculation/runs/airborne_wall_rating.h"
#include "calculation/runs/entered_numbers.h"
#include "calculation/runs/family_runs.h"
#include "models/floors/impact_floor.h"
#include "models/floors/impact_floor_rating.h"

namespace velmar::calculation {
RunOutcome RunImpactFloor(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const auto variant = std::get<acoustics::ImpactFloorVariant>(RowOf(request.calculation).form);
  const models::ImpactFloorOutcome floor = models::CalculateImpactFloor(
      {.variant = variant,
       .bearing = PlateLayers(setup.leaf1),
       .screed = PlateLayers(setup.leaf2),
       .resilient = ResilientMatsOf(setup.resilient),
       .side_a_m = EnteredLength(setup.width_text, {elements::Field::kWidth}),
       .side_b_m = EnteredLength(setup.height_text, {elements::Field::kHeight})});
  const models::ImpactRelation relation =
      models::FindImpactRelation(variant, floor.mass_kg_m2, floor.bearing_thickness_m);
  elements::ResultSet result;
  if (relation.left && !AskToLeaveRange(request, *relation.left, result)) return Declined();
  const models::ImpactFloorRating rating = models::RateImpactFloor(variant, floor, relation);
  const models::AirborneEstimate airborne =
      models::EstimateAirborne(floor.mass_kg_m2, floor.improvement.resonance_hz);
  result.spectrum = rating.impact_level_db;
  result.shift = rating.shift_db;
  result.lnw = rating.lnw_db;
  result.ci = rating.ci_db;
  result.delta_lnw = floor.improvement.delta_lnw_db;
  result.rw_estimate = airborne.rw_db;
  result.delta_rw_estimate = airborne.delta_rw_db;
  result.critical_frequency_hz = floor.critical_frequency_hz;
  result.loss_factor = floor.loss_factor;
  return {.status = RunStatus::kDone, .result = result};
}

}  // namespace velmar::calculation
