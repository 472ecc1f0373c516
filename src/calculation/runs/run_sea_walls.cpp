#include "acoustics/airborne_rating.h"
#include "calculation/runs/entered_numbers.h"
#include "calculation/runs/family_runs.h"
#include "calculation/runs/sea_inputs.h"
#include "calculation/runs/totals.h"
#include "models/sea/double_sea_wall.h"
#include "models/sea/single_sea_wall.h"

namespace velmar::calculation {
namespace {

models::SeaElementSize SizeOf(const elements::Setup& setup) {
  return {.length_a_m = EnteredLength(setup.width_text, {elements::Field::kWidth}),
          .length_b_m = EnteredLength(setup.height_text, {elements::Field::kHeight})};
}

std::optional<double> ConnectionCountOf(const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos) return std::nullopt;
  return EnteredNumber(text, {elements::Field::kSupport});
}

models::SeaConnection ConnectionOf(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const elements::CalculationRow& row = RowOf(request.calculation);
  // The layer that a connection holds on the first side is told by that side's own count.
  models::SeaConnection connection{.kind = std::get<acoustics::SeaConnectionKind>(row.form),
                                   .is_decoupled = setup.decoupled,
                                   .first_side_layer = static_cast<std::size_t>(setup.sea_leaf1.count)};
  if (IsCount(row.support)) connection.count = ConnectionCountOf(setup.support_distance_text);
  return connection;
}

RunOutcome Rated(const models::SeaWallOutcome& wall) {
  elements::ResultSet result;
  result.spectrum = wall.reduction_index_db;
  result.critical_frequency_hz = wall.critical_frequency_hz;
  result.mass_kg_m2 = wall.surface_mass_kg_m2;
  result.loss_factor = wall.loss_factor;
  result.shift = acoustics::FindShift(wall.reduction_index_db);
  result.rw = acoustics::RatingOfShift(*result.shift);
  const acoustics::AdaptationTerms terms =
      acoustics::FindAdaptationTerms(wall.reduction_index_db, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return {.status = RunStatus::kDone, .result = result};
}

}  // namespace

RunOutcome RunSingleSeaWall(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  return Rated(models::CalculateSingleSeaWall({.size = SizeOf(setup),
                                               .total_thickness_mm = ComputeTotals(setup).thickness_mm,
                                               .layers = SeaSideOf(setup.sea_leaf1)}));
}

RunOutcome RunDoubleSeaWall(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  const models::DoubleSeaWallInput input{.size = SizeOf(setup),
                                         .total_thickness_mm = ComputeTotals(setup).thickness_mm,
                                         .first_side = SeaSideOf(setup.sea_leaf1),
                                         .second_side = SeaSideOf(setup.sea_leaf2),
                                         .cavity = SeaCavityOf(setup.sea_cavity),
                                         .connection = ConnectionOf(request)};
  if (const Message objection = models::CheckDoubleSeaWall(input); !objection.empty())
    return Refused(objection);
  return Rated(models::CalculateDoubleSeaWall(input));
}

}  // namespace velmar::calculation
