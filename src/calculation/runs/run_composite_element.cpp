#include <optional>
#include <utility>
#include <variant>

#include "acoustics/airborne_rating.h"
#include "calculation/runs/facade_input.h"
#include "calculation/runs/family_runs.h"
#include "models/facades/composite_element.h"

namespace velmar::calculation {
namespace {

RunOutcome RunBandForm(const models::CompositeElementInput& input) {
  const auto calculated = models::CalculateCompositeSpectrum(input);
  if (const auto* refusal = std::get_if<models::CompositeRefusal>(&calculated))
    return Refused(refusal->message);
  const auto& composite = std::get<models::CompositeSpectrum>(calculated);
  elements::ResultSet result;
  result.spectrum = composite.reduction_index_db;
  result.mass_kg_m2 = composite.surface_mass_kg_m2;
  result.shift = acoustics::FindShift(*result.spectrum);
  result.rw = acoustics::RatingOfShift(*result.shift);
  const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(*result.spectrum, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return {.status = RunStatus::kDone, .result = result};
}

RunOutcome RunSimplifiedForm(const models::CompositeElementInput& input) {
  const auto calculated = models::CalculateCompositeRating(input);
  if (const auto* refusal = std::get_if<models::CompositeRefusal>(&calculated))
    return Refused(refusal->message);
  const auto& composite = std::get<models::CompositeRating>(calculated);
  elements::ResultSet result;
  result.rw = composite.rw_db;
  result.c = composite.c_db;
  result.ctr = composite.ctr_db;
  result.mass_kg_m2 = composite.surface_mass_kg_m2;
  return {.status = RunStatus::kDone, .result = result};
}

}  // namespace

RunOutcome RunCompositeElement(const RunRequest& request) {
  if (std::optional<Refusal> missing = FindMissingFacadeValue(request.setup))
    return Refused(std::move(*missing));
  const models::CompositeElementInput input = FacadeInputOf(request.setup);
  return request.setup.facade.simplified ? RunSimplifiedForm(input) : RunBandForm(input);
}

}  // namespace velmar::calculation
