#include "validation/accuracy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <stdexcept>

namespace velmar::validation {
namespace {

constexpr double kSmallError = 3.0;
// Groups whose errors are leaks, which no model of the element predicts and no estimate may rest on.
constexpr std::array<std::string_view, 2> kLeakyGroups = {"block, unsealed (leaks)",
                                                          "door leaf (leaks and seals not modelled)"};

/// Constructions in the order of their first prediction, with the sums over their set-ups.
class ByConstruction {
 public:
  void Add(const Prediction& prediction) {
    auto at = std::ranges::find(ids_, prediction.measured);
    if (at == ids_.end()) {
      ids_.push_back(prediction.measured);
      sums_.push_back({.source = prediction.source, .features = prediction.features});
      counts_.push_back(0.0);
      at = ids_.end() - 1;
    }
    const auto index = static_cast<std::size_t>(at - ids_.begin());
    sums_[index].error_db += prediction.Error();
    sums_[index].predicted_db += prediction.predicted;
    // One set-up may leave out a fill that another enters.
    sums_[index].features.filled = sums_[index].features.filled || prediction.features.filled;
    counts_[index] += 1.0;
  }

  std::vector<Observation> Means() const {
    std::vector<Observation> means = sums_;
    for (std::size_t i = 0; i < means.size(); ++i) {
      means[i].error_db /= counts_[i];
      means[i].predicted_db /= counts_[i];
    }
    return means;
  }

 private:
  std::vector<std::string> ids_{};
  std::vector<Observation> sums_{};
  std::vector<double> counts_{};
};

std::string ModelAndQuantity(std::string_view model, std::string_view quantity) {
  return std::string(model) + '\n' + std::string(PooledQuantity(quantity));
}

double Mean(const std::vector<double>& values) {
  double sum = 0.0;
  for (const double value : values) sum += value;
  return sum / static_cast<double>(values.size());
}

/// Mean of the octaves from `first` to before `end`, over all predictions that have them.
std::optional<double> MeanOfOctaves(const std::vector<const Prediction*>& predictions, std::size_t first,
                                    std::size_t end) {
  std::vector<double> errors;
  for (const Prediction* prediction : predictions) {
    for (std::size_t i = first; i < end; ++i) {
      if (prediction->octave_errors.at(i)) errors.push_back(*prediction->octave_errors.at(i));
    }
  }
  return errors.empty() ? std::nullopt : std::optional(Mean(errors));
}

BandSummary SummariseBands(const std::vector<const Prediction*>& predictions) {
  BandSummary summary{.low = MeanOfOctaves(predictions, 0, 2),
                      .mid = MeanOfOctaves(predictions, 2, 4),
                      .high = MeanOfOctaves(predictions, 4, acoustics::kOctaveCount)};
  std::set<std::string_view> measured;
  for (const Prediction* prediction : predictions) {
    if (std::ranges::any_of(prediction->octave_errors, [](const auto& error) { return error.has_value(); })) {
      measured.insert(prediction->measured);
    }
  }
  summary.count = measured.size();
  return summary;
}

bool IsNamedStud(ElementKind kind) {
  return kind == ElementKind::kWoodStuds || kind == ElementKind::kSteelStuds ||
         kind == ElementKind::kResilientStuds;
}

bool MayBeClaimed(const std::vector<Observation>& observations) {
  std::set<std::string_view> sources;
  for (const Observation& observation : observations) sources.insert(observation.source);
  return observations.size() >= kFewestObservations && sources.size() > 1;
}

void AddTo(Coverage& sum, const Coverage& part) {
  sum.held += part.held;
  sum.tried += part.tried;
}

}  // namespace

std::string_view PooledQuantity(std::string_view quantity) {
  if (quantity == "STC" || quantity == "Rw+C" || quantity == "Rw (octaves)") return "Rw";
  return quantity;
}

ErrorSummary Summarise(const std::vector<Observation>& observations) {
  if (observations.empty()) throw std::invalid_argument("errors of no construction");
  ErrorSummary summary{.count = observations.size()};
  const auto count = static_cast<double>(observations.size());
  std::set<std::string_view> sources;
  double squares = 0.0;
  double small = 0.0;
  for (const Observation& observation : observations) {
    const double error = observation.error_db;
    sources.insert(observation.source);
    summary.bias += error / count;
    squares += error * error;
    if (std::abs(error) > std::abs(summary.worst)) summary.worst = error;
    if (std::abs(error) <= kSmallError) small += 1.0;
  }
  summary.rms = std::sqrt(squares / count);
  summary.within_3db = small / count;
  summary.sources = sources.size();
  double around_mean = 0.0;
  double source_out = 0.0;
  for (const Observation& observation : observations) {
    around_mean += (observation.error_db - summary.bias) * (observation.error_db - summary.bias);
    std::vector<double> others;
    for (const Observation& other : observations) {
      const bool apart = summary.sources > 1 ? other.source != observation.source : &other != &observation;
      if (apart) others.push_back(other.error_db);
    }
    const double left = observation.error_db - (others.empty() ? 0.0 : Mean(others));
    source_out += left * left;
  }
  if (observations.size() > 1) summary.spread = std::sqrt(around_mean / (count - 1.0));
  summary.rms_source_out = std::sqrt(source_out / count);
  return summary;
}

Accuracy::Accuracy(std::vector<Prediction> predictions) : predictions_(std::move(predictions)) {
  std::map<Key, ByConstruction> sums;
  for (const Prediction& prediction : predictions_) {
    if (std::ranges::find(kLeakyGroups, prediction.group) != kLeakyGroups.end()) continue;
    // Told the frame of a construction, a model is another predictor than with a set-up alone; where the
    // set-up says as much, the errors of that one stand.
    if (prediction.frame_known && !IsNamedStud(prediction.kind)) continue;
    sums[{ModelAndQuantity(prediction.model, prediction.quantity), prediction.kind}].Add(prediction);
  }
  for (const auto& [key, sum] : sums) observations_[key] = sum.Means();
}

std::vector<const Prediction*> Accuracy::Compared() const {
  std::set<std::string_view> told_the_frame;  // models that were given more than a set-up says
  for (const Prediction& prediction : predictions_) {
    if (prediction.frame_known) told_the_frame.insert(prediction.model);
  }
  std::vector<const Prediction*> compared;
  for (const Prediction& prediction : predictions_) {
    if (prediction.frame_known || !told_the_frame.contains(prediction.model)) compared.push_back(&prediction);
  }
  return compared;
}

std::vector<AccuracyRow> Accuracy::Table() const {
  std::vector<AccuracyRow> table;
  std::vector<std::vector<const Prediction*>> members;
  for (const Prediction* compared : Compared()) {
    const Prediction& prediction = *compared;
    const std::string quantity(PooledQuantity(prediction.quantity));
    auto at = std::ranges::find_if(table, [&](const AccuracyRow& row) {
      return row.group == prediction.group && row.model == prediction.model && row.quantity == quantity;
    });
    if (at == table.end()) {
      table.push_back({.group = prediction.group, .model = prediction.model, .quantity = quantity});
      members.emplace_back();
      at = table.end() - 1;
    }
    members[static_cast<std::size_t>(at - table.begin())].push_back(compared);
  }
  for (std::size_t i = 0; i < table.size(); ++i) {
    ByConstruction sum;
    for (const Prediction* prediction : members[i]) sum.Add(*prediction);
    table[i].errors = Summarise(sum.Means());
    table[i].bands = SummariseBands(members[i]);
  }
  // Groups together, in the order of their first construction.
  std::vector<std::string> groups;
  for (const AccuracyRow& row : table) {
    if (std::ranges::find(groups, row.group) == groups.end()) groups.push_back(row.group);
  }
  std::ranges::stable_sort(table, {},
                           [&](const AccuracyRow& row) { return std::ranges::find(groups, row.group); });
  return table;
}

const std::vector<Observation>* Accuracy::Find(std::string_view model, ElementKind kind,
                                               std::string_view quantity) const {
  const auto at = observations_.find({ModelAndQuantity(model, quantity), kind});
  return at == observations_.end() ? nullptr : &at->second;
}

std::optional<ErrorSummary> Accuracy::ErrorsOf(std::string_view model, ElementKind kind,
                                               std::string_view quantity) const {
  const std::vector<Observation>* observations = Find(model, kind, quantity);
  return observations != nullptr ? std::optional(Summarise(*observations)) : std::nullopt;
}

IntervalOutcome Accuracy::IntervalOf(std::string_view model, ElementKind kind, std::string_view quantity,
                                     const Features& features, double predicted_db) const {
  const std::vector<Observation>* observations = Find(model, kind, quantity);
  if (observations == nullptr || kind == ElementKind::kOther) return {.reason = NoEstimate::kUnknownKind};
  if (observations->size() < kFewestObservations) return {.reason = NoEstimate::kTooFew};
  if (!MayBeClaimed(*observations)) return {.reason = NoEstimate::kOneSource};
  if (!IsWithinMeasured(*observations, features, predicted_db))
    return {.reason = NoEstimate::kOutsideMeasured};
  const ErrorEstimate estimate = ErrorModel(*observations).At(features);
  const double expected = predicted_db - estimate.bias_db;
  return {.interval = Interval{.quantity = std::string(PooledQuantity(quantity)),
                               .low = expected - estimate.half_width_db,
                               .high = expected + estimate.half_width_db,
                               .count = observations->size(),
                               .group = std::string(RowOf(kind).id)}};
}

CoverageFigures Accuracy::Coverages() const {
  CoverageFigures figures;
  for (const auto& [key, observations] : observations_) {
    if (key.second == ElementKind::kOther || !MayBeClaimed(observations)) continue;
    AddTo(figures.leave_one_out, LeaveOneOut(observations));
    AddTo(figures.leave_one_source_out, LeaveOneSourceOut(observations));
  }
  return figures;
}

}  // namespace velmar::validation
