#include <variant>

#include "acoustics/airborne_rating.h"
#include "calculation/entered_numbers.h"
#include "calculation/family_runs.h"
#include "models/facades/composite_element.h"

namespace velmar::calculation {
namespace {

models::FacadePart PartOf(const elements::BandTexts& bands, bool simplified, const std::string& rating,
                          const std::string& c, const std::string& ctr, float mass_kg_m2) {
  models::FacadePart part{.surface_mass_kg_m2 = static_cast<double>(mass_kg_m2)};
  if (simplified) {
    part.rating_db = EnteredNumberOrZero(rating);
    part.c_db = EnteredNumberOrZero(c);
    part.ctr_db = EnteredNumberOrZero(ctr);
    return part;
  }
  for (std::size_t band = 0; band < bands.size(); ++band)
    part.bands_db[band] = EnteredNumberOrZero(bands[band]);
  return part;
}

double ComponentArea(const std::string& text) {
  return text == elements::kSmallElementArea ? 0.0 : EnteredNumberOrZero(text);
}

models::CompositeElementInput InputOf(const elements::Setup& setup) {
  const elements::BaseElement& base = setup.base;
  const bool simplified = setup.facade.simplified;
  models::CompositeElementInput input;
  input.area_m2 = EnteredNumberOrZero(base.area_text);
  input.opaque =
      PartOf(base.band_texts, simplified, base.rating_text, base.c_text, base.ctr_text, base.mass_kg_m2);
  for (int i = 0; i < setup.facade.Count(); ++i) {
    const elements::FacadeComponent& component = setup.facade.components.at(static_cast<std::size_t>(i));
    input.components.push_back({.part = PartOf(component.band_texts, simplified, component.rating_text,
                                               component.c_text, component.ctr_text, component.mass_kg_m2),
                                .area_m2 = ComponentArea(component.area_text),
                                .tightness_class = component.tightness_class});
  }
  return input;
}

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
  const models::CompositeElementInput input = InputOf(request.setup);
  return request.setup.facade.simplified ? RunSimplifiedForm(input) : RunBandForm(input);
}

}  // namespace velmar::calculation
