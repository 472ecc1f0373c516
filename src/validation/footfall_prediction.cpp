#include "validation/footfall_prediction.h"

#include <utility>
#include <variant>

#include "acoustics/impact_numbers.h"
#include "calculation/runs/entered_numbers.h"

namespace velmar::validation {
namespace {

using elements::MeasuredConstruction;
using elements::MeasuredQuantity;
using elements::MeasuredSetup;

bool HasLevel(MeasuredQuantity quantity) {
  return quantity == MeasuredQuantity::kImpactLevel ||
         quantity == MeasuredQuantity::kImpactLevelAndImprovement;
}

bool HasImprovement(MeasuredQuantity quantity) {
  return quantity == MeasuredQuantity::kImpactImprovement ||
         quantity == MeasuredQuantity::kImpactLevelAndImprovement;
}

void Predict(const MeasuredConstruction& construction, const MeasuredSetup& measured,
             PredictionOutcome& outcome) {
  const auto floor = FootfallOf(measured.setup);
  if (!floor) {
    outcome.refused.push_back({.id = construction.id, .reason = kFootfallModel});
    return;
  }
  const auto add = [&](const char* quantity, const std::optional<double>& predicted,
                       const std::optional<double>& value) {
    if (!predicted || !value) return;
    outcome.predictions.push_back({.measured = construction.id,
                                   .group = measured.group,
                                   .source = construction.source,
                                   .model = kFootfallModel,
                                   .kind = KindOf(measured.setup),
                                   .quantity = quantity,
                                   .predicted = *predicted,
                                   .value = *value,
                                   .features = FeaturesOf(measured.setup)});
  };
  if (HasLevel(measured.quantity)) {
    const auto numbers = acoustics::FindImpactNumbers(acoustics::LevelsOf(floor->impact_level_db));
    add("Lnw", numbers.lnw, construction.lnw);
  }
  if (HasImprovement(measured.quantity)) add("DeltaLnw", floor->improvement_w_db, construction.delta_lw);
}

}  // namespace

std::optional<models::FootfallPrediction> FootfallOf(const elements::Setup& setup) {
  if (!setup.calculation || RowOf(*setup.calculation).family != elements::Family::kImpact)
    return std::nullopt;
  const auto outcome = models::PredictFootfall(
      {.bearing = calculation::PlateLayers(setup.leaf1),
       .floating = calculation::PlateLayers(setup.leaf2),
       .resilient = calculation::ResilientMatsOf(setup.resilient),
       .side_a_m = calculation::EnteredLength(setup.width_text, {elements::Field::kWidth}),
       .side_b_m = calculation::EnteredLength(setup.height_text, {elements::Field::kHeight})});
  const auto* prediction = std::get_if<models::FootfallPrediction>(&outcome);
  return prediction != nullptr ? std::optional(*prediction) : std::nullopt;
}

PredictionOutcome PredictWithFootfall(const elements::MeasuredData& data) {
  PredictionOutcome outcome;
  for (const MeasuredConstruction& construction : data.constructions) {
    for (const MeasuredSetup& measured : construction.setups) {
      if (HasLevel(measured.quantity) || HasImprovement(measured.quantity)) {
        Predict(construction, measured, outcome);
      }
    }
  }
  return outcome;
}

}  // namespace velmar::validation
