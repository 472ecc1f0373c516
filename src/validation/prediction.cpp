#include "validation/prediction.h"

#include <algorithm>
#include <cmath>

#include "acoustics/airborne_numbers.h"
#include "acoustics/airborne_rating.h"
#include "calculation/runs/run.h"
#include "calculation/runs/totals.h"
#include "elements/parts.h"
#include "foundation/decimal.h"

namespace velmar::validation {
namespace {

using elements::BandWidth;
using elements::MeasuredConstruction;
using elements::MeasuredQuantity;
using elements::MeasuredSetup;
using elements::ResultSet;

constexpr double kSameFrequency = 0.05;  // nominal centres are written in more than one way

const elements::BandValue* BandNear(const std::vector<elements::BandValue>& bands, double frequency_hz) {
  const auto at = std::ranges::find_if(bands, [&](const elements::BandValue& band) {
    return std::abs(band.frequency_hz / frequency_hz - 1.0) < kSameFrequency;
  });
  return at == bands.end() ? nullptr : &*at;
}

/// The measured octave around `centre_hz`, out of its three thirds where those were measured.
std::optional<double> MeasuredOctave(const MeasuredConstruction& construction, double centre_hz) {
  if (construction.band_width == BandWidth::kOctave) {
    const auto* band = BandNear(construction.bands, centre_hz);
    return band != nullptr ? std::optional(band->level_db) : std::nullopt;
  }
  double energy = 0.0;
  for (const double ratio : {0.8, 1.0, 1.26}) {
    const auto* band = BandNear(construction.bands, centre_hz * ratio);
    if (band == nullptr) return std::nullopt;
    energy += std::pow(10.0, -band->level_db / 10.0) / 3.0;
  }
  return -10.0 * std::log10(energy);
}

OctaveErrors OctaveErrorsOf(const MeasuredConstruction& construction, const acoustics::Spectrum& result) {
  OctaveErrors errors{};
  if (construction.bands.empty()) return errors;
  const acoustics::OctaveSpectrum octaves = acoustics::OctavesOf(result);
  for (std::size_t i = 0; i < errors.size(); ++i) {
    if (const auto measured = MeasuredOctave(construction, acoustics::kOctaveCentres[i])) {
      errors[i] = octaves[i] - *measured;
    }
  }
  return errors;
}

double Rw(const acoustics::Spectrum& result) {
  return acoustics::RatingOfShift(acoustics::FindShift(result));
}

void Add(std::vector<Prediction>& predictions, const char* quantity, const std::optional<double>& predicted,
         const std::optional<double>& value) {
  if (!predicted || !value) return;
  predictions.push_back({.quantity = quantity, .predicted = *predicted, .value = *value});
}

std::vector<Prediction> Compare(const MeasuredConstruction& construction, MeasuredQuantity quantity,
                                const ResultSet& result) {
  std::vector<Prediction> predictions;
  switch (quantity) {
    case MeasuredQuantity::kReduction:
      if (result.spectrum) {
        if (auto rated = RateAsMeasured(construction, *result.spectrum)) {
          // A relation rates by itself; without a spectrum of its own kind the ratings agree.
          predictions.push_back(std::move(*rated));
        }
      } else {
        Add(predictions, "Rw", result.rw, construction.rw);
      }
      break;
    case MeasuredQuantity::kReductionImprovement:
      Add(predictions, "DeltaRw", result.delta_rw, construction.delta_stc);
      break;
    case MeasuredQuantity::kImpactLevel:
      Add(predictions, "Lnw", result.lnw, construction.lnw);
      break;
    case MeasuredQuantity::kImpactImprovement:
      Add(predictions, "DeltaLnw", result.delta_lnw, construction.delta_lw);
      break;
    case MeasuredQuantity::kImpactLevelAndImprovement:
      Add(predictions, "Lnw", result.lnw, construction.lnw);
      Add(predictions, "DeltaLnw", result.delta_lnw, construction.delta_lw);
      break;
  }
  return predictions;
}

void Predict(const MeasuredConstruction& construction, const MeasuredSetup& measured,
             PredictionOutcome& outcome) {
  elements::Setup setup = measured.setup;
  calculation::PrepareRun(setup);
  const calculation::RunOutcome run =
      calculation::RunCalculation(setup, 0.0, [](const Message&) { return true; });
  const std::string model(RowOf(*setup.calculation).variant);
  if (!run.result) {
    outcome.refused.push_back({.id = construction.id, .reason = model});
    return;
  }
  for (Prediction& prediction : Compare(construction, measured.quantity, *run.result)) {
    prediction.measured = construction.id;
    prediction.group = measured.group;
    prediction.source = construction.source;
    prediction.model = model;
    prediction.kind = KindOf(setup);
    prediction.features = FeaturesOf(setup);
    outcome.predictions.push_back(std::move(prediction));
  }
}

}  // namespace

Features FeaturesOf(const elements::Setup& setup) {
  Features features{.mass_kg_m2 = calculation::ComputeTotals(setup).surface_mass_kg_m2};
  if (!setup.calculation) return features;
  switch (RowOf(*setup.calculation).family) {
    case elements::Family::kDouble:
    case elements::Family::kSharp:
      if (RowOf(*setup.calculation).orientation == elements::Orientation::kHorizontalDouble) break;
      features.depth_mm = ParseDecimal(setup.cavity.depth_text).value_or(0.0);
      features.filled = setup.cavity.kind != elements::CavityKind::kEmpty;
      break;
    case elements::Family::kSea:
    case elements::Family::kLining:
    case elements::Family::kCeiling:
      features.depth_mm = ParseDecimal(setup.sea_cavity.depth_text).value_or(0.0);
      features.filled = elements::FibreCount(setup.sea_cavity.type) > 0;
      break;
    case elements::Family::kMultilayer:
      for (const elements::Part& part : elements::PartsOfList(setup.multilayer)) {
        if (!part.depth_mm) continue;
        features.depth_mm += *part.depth_mm;
        features.filled = features.filled || !part.layers.empty();
      }
      break;
    default:
      break;
  }
  return features;
}

std::optional<Prediction> RateAsMeasured(const MeasuredConstruction& construction,
                                         const acoustics::Spectrum& result) {
  Prediction prediction{.octave_errors = OctaveErrorsOf(construction, result)};
  const auto rated = [&](const char* quantity, double predicted, double value) {
    prediction.quantity = quantity;
    prediction.predicted = predicted;
    prediction.value = value;
    return prediction;
  };
  if (construction.rw) return rated("Rw", Rw(result), *construction.rw);
  if (construction.stc) {
    const auto numbers = acoustics::FindAirborneNumbers(acoustics::LevelsOf(result));
    if (numbers.stc) return rated("STC", *numbers.stc, *construction.stc);
  }
  if (construction.rw_plus_c) {
    const double rw = Rw(result);
    return rated("Rw+C", rw + acoustics::FindAdaptationTerms(result, rw).c, *construction.rw_plus_c);
  }
  if (construction.rw_of_octaves) {
    return rated("Rw (octaves)", acoustics::RateOctaves(acoustics::OctavesOf(result)),
                 *construction.rw_of_octaves);
  }
  return std::nullopt;
}

PredictionOutcome PredictWithCalculations(const elements::MeasuredData& data) {
  PredictionOutcome outcome;
  for (const MeasuredConstruction& construction : data.constructions) {
    for (const MeasuredSetup& measured : construction.setups) Predict(construction, measured, outcome);
  }
  return outcome;
}

}  // namespace velmar::validation
