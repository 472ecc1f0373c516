#include "validation/second_opinion.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "acoustics/airborne_rating.h"
#include "acoustics/impact_numbers.h"
#include "calculation/runs/run.h"
#include "foundation/decimal.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "foundation/rounding.h"
#include "validation/footfall_prediction.h"
#include "validation/model_choice.h"
#include "validation/model_prediction.h"

namespace velmar::validation {
namespace {

using elements::Family;
using elements::ResultSet;
using elements::Setup;

constexpr const char* kChosenCalculation = "calculation";

/// The rating that measurements of such a set-up are compared with.
struct Rated {
  const char* quantity = "";
  const char* symbol = "";  ///< as a person reads it
  double value = 0.0;
};

std::optional<Rated> RatedBy(const Setup& setup, const ResultSet& result) {
  const Family family = elements::RowOf(*setup.calculation).family;
  if (result.lnw) return Rated{"Lnw", "Ln,w", *result.lnw};
  if (family == Family::kLining && result.delta_rw) return Rated{"DeltaRw", "ΔRw", *result.delta_rw};
  if (result.rw) return Rated{"Rw", "Rw", *result.rw};
  return std::nullopt;
}

ResultSet RateSpectrum(const acoustics::Spectrum& spectrum) {
  ResultSet result;
  result.spectrum = spectrum;
  result.shift = acoustics::FindShift(spectrum);
  result.rw = acoustics::RatingOfShift(*result.shift);
  const acoustics::AdaptationTerms terms = acoustics::FindAdaptationTerms(spectrum, *result.rw);
  result.c = terms.c;
  result.ctr = terms.ctr;
  return result;
}

/// @param model the name under which its errors are known
ModelOpinion OpinionOf(std::string id, MessageLine name, std::string_view model, const Setup& setup,
                       ResultSet result, const Accuracy& accuracy) {
  ModelOpinion opinion{.id = std::move(id), .name = std::move(name), .result = std::move(result)};
  const ElementKind kind = KindOf(setup);
  if (const auto rated = RatedBy(setup, opinion.result); rated && kind != ElementKind::kOther) {
    opinion.errors = accuracy.ErrorsOf(model, kind, rated->quantity);
    opinion.interval = accuracy.IntervalOf(model, kind, rated->quantity, FeaturesOf(setup), rated->value);
  }
  return opinion;
}

/// Whether a set-up for one calculation holds all that the other reads.
bool ReadTheSameFields(elements::Calculation one, elements::Calculation other) {
  const auto shape = [](elements::Calculation calculation) {
    const elements::CalculationRow& row = elements::RowOf(calculation);
    if (row.family == Family::kSingle) return std::pair(row.family, elements::Orientation::kVerticalSingle);
    const bool two_leaves = row.family == Family::kDouble || row.family == Family::kSharp;
    return std::pair(two_leaves ? Family::kDouble : row.family, row.orientation);
  };
  return shape(one) == shape(other);
}

/// The marked calculation on the fields of `setup`; nothing where it reads others or gives no result.
std::optional<ModelOpinion> MarkedCalculation(const Setup& setup, std::string_view model,
                                              const Accuracy& accuracy) {
  const auto calculation = elements::FindCalculation(model);
  if (!calculation || calculation == setup.calculation) return std::nullopt;
  if (!ReadTheSameFields(*setup.calculation, *calculation)) return std::nullopt;
  Setup other = setup;
  other.calculation = calculation;
  calculation::PrepareRun(other);
  calculation::RunOutcome run = calculation::RunCalculation(other, 0.0, [](const Message&) { return true; });
  if (!run.result) return std::nullopt;
  return OpinionOf(std::string(model), {std::string(model)}, model, other, std::move(*run.result), accuracy);
}

void AddModel(SecondOpinion& opinion, const char* model, MessageRow name,
              const std::optional<acoustics::Spectrum>& spectrum, const Setup& setup,
              const Accuracy& accuracy) {
  if (!spectrum) return;
  try {
    opinion.models.push_back(OpinionOf(model, {name}, model, setup, RateSpectrum(*spectrum), accuracy));
  } catch (const ArithmeticFailure&) {
    // A spectrum that cannot be rated is no opinion.
  }
}

/// The floor after EN ISO 12354-2; nothing where it does not apply, refuses a value or cannot be rated.
std::optional<ModelOpinion> FootfallOpinion(const Setup& setup, const Accuracy& accuracy) {
  try {
    const auto floor = FootfallOf(setup);
    if (!floor) return std::nullopt;
    const auto numbers = acoustics::FindImpactNumbers(acoustics::LevelsOf(floor->impact_level_db));
    if (!numbers.lnw) return std::nullopt;
    ResultSet result;
    result.spectrum = floor->impact_level_db;
    result.lnw = numbers.lnw;
    result.ci = numbers.ci;
    return OpinionOf(kFootfallModel, {kFootfallNameRow}, kFootfallModel, setup, std::move(result), accuracy);
  } catch (const ArithmeticFailure&) {
    return std::nullopt;
  }
}

/// Marks one model: that of the rule, else the layered one, else the first.
void Mark(SecondOpinion& opinion, const std::optional<ModelRule>& rule, std::string_view chosen) {
  if (opinion.models.empty()) return;
  const auto named = [&](std::string_view model) {
    return std::ranges::find_if(opinion.models, [&](const ModelOpinion& candidate) {
      return candidate.id == model || (candidate.id == kChosenCalculation && model == chosen);
    });
  };
  auto best = rule ? named(rule->model) : opinion.models.begin();
  if (best == opinion.models.end()) best = named(kLayeredModel);
  if (best == opinion.models.end()) best = opinion.models.begin();
  best->best = true;
}

MessageRow ReasonRow(NoEstimate reason) {
  switch (reason) {
    case NoEstimate::kUnknownKind:
      return kUnknownKindRow;
    case NoEstimate::kTooFew:
      return kTooFewRow;
    case NoEstimate::kOneSource:
      return kOneSourceRow;
    case NoEstimate::kOutsideMeasured:
      return kOutsideMeasuredRow;
  }
  return kUnknownKindRow;
}

std::optional<BiasNote> NoteOn(const SecondOpinion& opinion) {
  const auto best = std::ranges::find(opinion.models, true, &ModelOpinion::best);
  if (opinion.models.empty() || best == opinion.models.begin()) return std::nullopt;
  const ModelOpinion& chosen = opinion.models.front();
  if (chosen.id != kChosenCalculation || !chosen.errors) return std::nullopt;
  if (chosen.errors->count < kFewestObservations || std::abs(chosen.errors->bias) <= kNotableBiasDb) {
    return std::nullopt;
  }
  if (!best->errors || std::abs(best->errors->bias) >= std::abs(chosen.errors->bias)) return std::nullopt;
  return BiasNote{.kind = opinion.kind,
                  .bias_db = chosen.errors->bias,
                  .count = chosen.errors->count,
                  .better = best->name};
}

}  // namespace

SecondOpinion FormOpinion(const Setup& setup, const std::optional<ResultSet>& result,
                          const Accuracy& accuracy) {
  SecondOpinion opinion{.kind = KindOf(setup)};
  if (!setup.calculation) return opinion;
  const std::string_view chosen = elements::RowOf(*setup.calculation).variant;
  if (result) {
    opinion.models.push_back(
        OpinionOf(kChosenCalculation, {std::string(chosen)}, chosen, setup, *result, accuracy));
  }
  AddModel(opinion, kLayeredModel, kLayeredNameRow, LayeredSpectrum(setup), setup, accuracy);
  AddModel(opinion, kMonolithicModel, kMonolithicNameRow, MonolithicSpectrum(setup), setup, accuracy);
  if (auto footfall = FootfallOpinion(setup, accuracy)) opinion.models.push_back(std::move(*footfall));
  const std::optional<ModelRule> rule = RuleFor(opinion.kind);
  if (rule) {
    if (auto marked = MarkedCalculation(setup, rule->model, accuracy))
      opinion.models.push_back(std::move(*marked));
  }
  Mark(opinion, rule, chosen);
  opinion.note = NoteOn(opinion);
  return opinion;
}

IntervalOutcome IntervalOfResult(const Setup& setup, const ResultSet& result, const Accuracy& accuracy) {
  if (!setup.calculation) return {};
  const auto rated = RatedBy(setup, result);
  if (!rated) return {};
  return accuracy.IntervalOf(elements::RowOf(*setup.calculation).variant, KindOf(setup), rated->quantity,
                             FeaturesOf(setup), rated->value);
}

MessageLine IntervalLine(const IntervalOutcome& outcome) {
  if (outcome.interval) {
    return {
        kIntervalFromRow,
        " " + FormatFixed(outcome.interval->low, 0) + " ",
        kIntervalToRow,
        " " + FormatFixed(outcome.interval->high, 0) + " (" + std::to_string(outcome.interval->count) + " ",
        kMeasurementsRow,
        std::string(")")};
  }
  return {kNoEstimateRow, std::string(": "), ReasonRow(outcome.reason)};
}

Message ConfidenceLines(const Setup& setup, const ResultSet& result, const IntervalOutcome& outcome) {
  if (!setup.calculation) return {};
  const auto rated = RatedBy(setup, result);
  if (!rated) return {};
  const double shown = RoundToEven(rated->value);
  MessageLine line = {std::string(rated->symbol) + " " + FormatShortest(shown) + " dB · "};
  for (MessagePiece& piece : IntervalLine(outcome)) line.push_back(std::move(piece));
  Message lines = {std::move(line)};
  if (!outcome.interval) return lines;
  const bool impact = result.lnw.has_value();
  if (shown > RoundToEven(outcome.interval->high))
    lines.push_back({impact ? kImpactAboveIntervalRow : kAboveIntervalRow});
  if (shown < RoundToEven(outcome.interval->low))
    lines.push_back({impact ? kImpactBelowIntervalRow : kBelowIntervalRow});
  return lines;
}

Message ConfidenceOf(const Setup& setup, const std::optional<ResultSet>& result, const Accuracy& accuracy) {
  if (!result) return {};
  return ConfidenceLines(setup, *result, IntervalOfResult(setup, *result, accuracy));
}

Message NoteLines(const BiasNote& note) {
  MessageLine line = {
      kNoteForRow,
      std::string(" "),
      RowOf(note.kind).name,
      std::string(" "),
      note.bias_db < 0.0 ? kNoteUnderRow : kNoteOverRow,
      " " + FormatFixed(std::abs(note.bias_db), 0) + " dB (" + std::to_string(note.count) + " ",
      kMeasurementsRow,
      std::string("). "),
      kNoteSeeRow,
      std::string(" ")};
  line.insert(line.end(), note.better.begin(), note.better.end());
  return {line};
}

}  // namespace velmar::validation
