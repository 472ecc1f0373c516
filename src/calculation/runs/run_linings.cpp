#include <optional>

#include "calculation/runs/entered_numbers.h"
#include "calculation/runs/family_runs.h"
#include "calculation/runs/sea_inputs.h"
#include "foundation/decimal.h"
#include "models/sea/lining.h"
#include "models/sea/lining_checks.h"
#include "models/sea/lining_rating.h"

namespace velmar::calculation {
namespace {

models::LiningInput InputOf(const RunRequest& request) {
  const elements::Setup& setup = request.setup;
  models::LiningInput input{.variant = std::get<acoustics::LiningVariant>(RowOf(request.calculation).form),
                            .base_rw_db = ParseSingle(setup.base.rating_text),
                            .base_mass_kg_m2 = setup.base.mass_kg_m2,
                            .layers = SeaSideOf(setup.sea_leaf2),
                            .cavity = SeaCavityOf(setup.sea_cavity),
                            .hanger = setup.hanger,
                            .support_distance = ParseDecimal(setup.support_distance_text)};
  for (std::size_t band = 0; band < input.base_spectrum_db.size(); ++band) {
    input.base_spectrum_db[band] = ParseDecimal(setup.base.band_texts[band]);
  }
  return input;
}

/// What keeps the lining from running; no line when nothing does.
Message ObjectionTo(const RunRequest& request, const models::LiningInput& input) {
  Message no_depth = models::CheckLiningDepth(ParseDecimal(request.setup.sea_cavity.depth_text));
  return no_depth.empty() ? models::CheckLining(input) : no_depth;
}

}  // namespace

RunOutcome RunSeaLining(const RunRequest& request) {
  const models::LiningInput input = InputOf(request);
  if (const Message objection = ObjectionTo(request, input); !objection.empty()) return Refused(objection);
  const models::LiningOutcome lining = models::CalculateLining(input);
  const models::LiningRating rating =
      models::RateLining(lining.reduction_index_db, input.base_rw_db.value_or(0.0F));
  elements::ResultSet result;
  result.spectrum = lining.reduction_index_db;
  result.shift = rating.shift;
  result.rw = rating.rw;
  result.delta_rw = rating.delta_rw;
  result.c = rating.c;
  result.ctr = rating.ctr;
  return {.status = RunStatus::kDone, .result = result};
}

RunOutcome RunGenericLining(const RunRequest& request) {
  const models::LiningInput input = InputOf(request);
  if (const Message objection = ObjectionTo(request, input); !objection.empty()) return Refused(objection);
  const models::LiningRating rating = models::RateGenericLining(input);
  elements::ResultSet result;
  result.rw = rating.rw;
  result.delta_rw = rating.delta_rw;
  return {.status = RunStatus::kDone, .result = result};
}

}  // namespace velmar::calculation
