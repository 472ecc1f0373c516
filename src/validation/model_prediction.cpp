#include "validation/model_prediction.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <variant>

#include "models/layered/layered_element.h"
#include "models/monolithic/monolithic_element.h"
#include "validation/footfall_prediction.h"
#include "validation/layered_input.h"
#include "validation/monolithic_input.h"
#include "validation/multilayer_setup.h"

namespace velmar::validation {
namespace {

using elements::MeasuredConstruction;
using elements::MeasuredQuantity;
using elements::MeasuredSetup;

void PredictLayeredOf(const MeasuredConstruction& construction, const MeasuredSetup& measured,
                      bool frame_known, PredictionOutcome& outcome) {
  const elements::Frame frame = frame_known ? construction.frame : elements::Frame::kNone;
  const auto spectrum = LayeredSpectrum(measured.setup, frame);
  if (!spectrum) {
    if (frame_known) outcome.refused.push_back({.id = construction.id, .reason = kLayeredModel});
    return;
  }
  if (auto prediction = PredictionOf(construction, measured, kLayeredModel, *spectrum)) {
    prediction->kind = KindOf(measured.setup, frame);
    prediction->frame_known = frame_known;
    outcome.predictions.push_back(std::move(*prediction));
  }
}

}  // namespace

std::optional<MeasuredSetup> FullestSetup(const MeasuredConstruction& construction) {
  const MeasuredSetup* fullest = nullptr;
  const elements::Cavity* filled = nullptr;
  const auto rank = [](const MeasuredSetup& measured) {
    switch (RowOf(*measured.setup.calculation).family) {
      case elements::Family::kSharp:
        return 3;
      case elements::Family::kSingle:
      case elements::Family::kDouble:
        return 2;
      default:
        return 1;
    }
  };
  for (const MeasuredSetup& measured : construction.setups) {
    if (measured.quantity != MeasuredQuantity::kReduction || !LayeredElementOf(measured.setup)) continue;
    if (fullest == nullptr || rank(measured) > rank(*fullest)) fullest = &measured;
    if (measured.setup.cavity.kind == elements::CavityKind::kGenericMaterial) filled = &measured.setup.cavity;
  }
  if (fullest == nullptr) return std::nullopt;
  MeasuredSetup setup = *fullest;
  if (filled != nullptr) setup.setup.cavity = *filled;
  return setup;
}

std::optional<Prediction> PredictionOf(const MeasuredConstruction& construction,
                                       const MeasuredSetup& measured, std::string_view model,
                                       const acoustics::Spectrum& spectrum) {
  std::optional<Prediction> prediction = RateAsMeasured(construction, spectrum);
  if (!prediction) return std::nullopt;
  prediction->measured = construction.id;
  prediction->group = measured.group;
  prediction->source = construction.source;
  prediction->model = model;
  prediction->kind = KindOf(measured.setup);
  prediction->features = FeaturesOf(measured.setup);
  return prediction;
}

std::optional<acoustics::Spectrum> LayeredSpectrum(const elements::Setup& setup, elements::Frame frame) {
  const auto element = LayeredElementOf(setup, frame);
  if (!element) return std::nullopt;
  const models::LayeredOutcome outcome = models::PredictLayered(*element);
  const auto* prediction = std::get_if<models::LayeredPrediction>(&outcome);
  return prediction != nullptr ? std::optional(prediction->reduction_index_db) : std::nullopt;
}

PredictionOutcome PredictWithLayered(const elements::MeasuredData& data) {
  PredictionOutcome outcome;
  for (const MeasuredConstruction& construction : data.constructions) {
    if (const auto fullest = FullestSetup(construction))
      PredictLayeredOf(construction, *fullest, true, outcome);
    for (const MeasuredSetup& measured : construction.setups) {
      if (measured.quantity == MeasuredQuantity::kReduction)
        PredictLayeredOf(construction, measured, false, outcome);
    }
  }
  return outcome;
}

std::optional<acoustics::Spectrum> MonolithicSpectrum(const elements::Setup& setup) {
  const auto element = MonolithicElementOf(setup);
  if (!element) return std::nullopt;
  const models::MonolithicOutcome outcome =
      models::PredictMonolithic(*element, {.thick_wall = models::ThickWallForm::kEffectiveCriticalFrequency});
  const auto* prediction = std::get_if<models::MonolithicPrediction>(&outcome);
  return prediction != nullptr ? std::optional(prediction->reduction_index_db) : std::nullopt;
}

PredictionOutcome PredictWithMonolithic(const elements::MeasuredData& data) {
  PredictionOutcome outcome;
  for (const MeasuredConstruction& construction : data.constructions) {
    for (const MeasuredSetup& measured : construction.setups) {
      if (measured.quantity != MeasuredQuantity::kReduction) continue;
      const auto spectrum = MonolithicSpectrum(measured.setup);
      if (!spectrum) continue;
      if (auto prediction = PredictionOf(construction, measured, kMonolithicModel, *spectrum)) {
        outcome.predictions.push_back(std::move(*prediction));
      }
    }
  }
  return outcome;
}

PredictionOutcome PredictWithAllModels(const elements::MeasuredData& data) {
  PredictionOutcome all = PredictWithCalculations(data);
  std::array new_models = {PredictWithLayered(data), PredictWithMultilayer(data), PredictWithMonolithic(data),
                           PredictWithFootfall(data)};
  for (PredictionOutcome& further : new_models) {
    std::ranges::move(further.predictions, std::back_inserter(all.predictions));
    std::ranges::move(further.refused, std::back_inserter(all.refused));
  }
  return all;
}

}  // namespace velmar::validation
