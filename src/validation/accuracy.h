#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "validation/element_kind.h"
#include "validation/error_model.h"
#include "validation/prediction.h"

namespace velmar::validation {

/// Errors of a model on a number of constructions, predicted minus measured, in dB. Each construction counts
/// once: set-ups that describe the same one are averaged.
struct ErrorSummary {
  std::size_t count = 0;
  double bias = 0.0;    ///< mean
  double spread = 0.0;  ///< standard deviation; 0 for one construction
  double rms = 0.0;
  double worst = 0.0;       ///< the error of greatest size, with its sign
  double within_3db = 0.0;  ///< share, 0 to 1
  std::size_t sources = 0;
  /// The marked error: rms of what is left when the bias that all other sources show is taken off; with one
  /// source, all other constructions.
  double rms_source_out = 0.0;
};

/// The mean error of octaves, where octaves were measured.
struct BandSummary {
  std::size_t count = 0;
  std::optional<double> low{};   ///< 63 and 125 Hz
  std::optional<double> mid{};   ///< 250 and 500 Hz
  std::optional<double> high{};  ///< 1000 to 4000 Hz
};

/// One row of the table of accuracy.
struct AccuracyRow {
  std::string group{};
  std::string model{};
  std::string quantity{};  ///< "Rw", "DeltaRw", "Lnw" or "DeltaLnw"
  ErrorSummary errors{};
  BandSummary bands{};
};

/// What a laboratory would measure, with kIntervalCoverage.
struct Interval {
  std::string quantity{};
  double low = 0.0;   ///< dB
  double high = 0.0;  ///< dB
  double coverage = kIntervalCoverage;
  std::size_t count = 0;  ///< constructions that it rests on
  std::string group{};    ///< id of the kind of element
};

/// Why nothing is claimed.
enum class NoEstimate {
  kUnknownKind,     ///< the element is of no kind that was measured, or this model was not tried on it
  kTooFew,          ///< below kFewestObservations
  kOneSource,       ///< all measurements come from one source
  kOutsideMeasured  ///< mass, cavity, filling or result lie outside what was measured
};

/// An interval, or why there is none.
struct IntervalOutcome {
  std::optional<Interval> interval{};
  NoEstimate reason = NoEstimate::kUnknownKind;  ///< without an interval
};

/// Coverage over all pairs of model and kind for which an interval may be claimed.
struct CoverageFigures {
  Coverage leave_one_out{};
  Coverage leave_one_source_out{};
};

/// The quantity whose errors `quantity` is pooled with: every airborne rating stands for Rw.
std::string_view PooledQuantity(std::string_view quantity);

/// All that is known of the errors of all models.
class Accuracy {
 public:
  Accuracy() = default;
  explicit Accuracy(std::vector<Prediction> predictions);

  const std::vector<Prediction>& Predictions() const { return predictions_; }

  /// The predictions that the table compares: those of the new models as they predict a construction of which
  /// the frame is known, those of calculations as a set-up tells them.
  std::vector<const Prediction*> Compared() const;

  /// One row a group of measured constructions, model and quantity, in the order of the data.
  std::vector<AccuracyRow> Table() const;

  /// The errors of `model` on elements of `kind`; nothing where it was not tried.
  std::optional<ErrorSummary> ErrorsOf(std::string_view model, ElementKind kind,
                                       std::string_view quantity) const;

  /// The interval of the measured value where `model` predicts `predicted_db`.
  IntervalOutcome IntervalOf(std::string_view model, ElementKind kind, std::string_view quantity,
                             const Features& features, double predicted_db) const;

  CoverageFigures Coverages() const;

 private:
  using Key = std::pair<std::string, ElementKind>;  // model and quantity; kind

  const std::vector<Observation>* Find(std::string_view model, ElementKind kind,
                                       std::string_view quantity) const;

  std::vector<Prediction> predictions_{};
  std::map<Key, std::vector<Observation>> observations_{};
};

/// The errors of `observations`, each a construction. @throws std::invalid_argument without any
ErrorSummary Summarise(const std::vector<Observation>& observations);

}  // namespace velmar::validation
