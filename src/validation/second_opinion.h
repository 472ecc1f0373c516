#pragma once

#include <optional>
#include <string>
#include <vector>

#include "elements/result_set.h"
#include "elements/setup.h"
#include "foundation/message.h"
#include "validation/accuracy.h"

namespace velmar::validation {

/// What one model says of a set-up, and what is known of its errors on such elements.
struct ModelOpinion {
  std::string id{};    ///< "calculation", "layered", "monolithic", or the stored text of another calculation
  MessageLine name{};  ///< as shown
  elements::ResultSet result{};
  std::optional<ErrorSummary> errors{};  ///< of measured elements of this kind; nothing where there are none
  IntervalOutcome interval{};
  bool best = false;  ///< marked by the rule for this kind of element
};

/// The chosen calculation errs by more than kNotableBiasDb on elements of this kind.
struct BiasNote {
  ElementKind kind{};
  double bias_db = 0.0;  ///< predicted minus measured
  std::size_t count = 0;
  MessageLine better{};  ///< name of the marked model
};
inline constexpr double kNotableBiasDb = 4.0;

/// All models that apply to a set-up.
struct SecondOpinion {
  ElementKind kind{};
  std::vector<ModelOpinion> models{};  ///< the chosen calculation first, when it has a result
  std::optional<BiasNote> note{};
};

/// Every model that applies to `setup`: the chosen calculation with its `result`, the new models, and the
/// calculation that is marked for this kind of element where it reads the same fields. Exactly one is marked
/// unless none has a result.
SecondOpinion FormOpinion(const elements::Setup& setup, const std::optional<elements::ResultSet>& result,
                          const Accuracy& accuracy);

/// What a laboratory would measure where the chosen calculation gave `result`: of Rw, of the improvement by a
/// lining, or of Ln,w.
IntervalOutcome IntervalOfResult(const elements::Setup& setup, const elements::ResultSet& result,
                                 const Accuracy& accuracy);

/// "90 % interval: from 48 to 56 (43 measurements)" in whole decibels, or "no estimate" and why.
MessageLine IntervalLine(const IntervalOutcome& outcome);

/// What is known of the error of `result`: its rating and the interval or why there is none ("Rw 52 dB · 90 %
/// interval: from 48 to 56 (43 measurements)"), and where the interval excludes the result a line that says
/// so in words. Whole decibels, as shown. No line without a rating.
Message ConfidenceLines(const elements::Setup& setup, const elements::ResultSet& result,
                        const IntervalOutcome& outcome);

/// ConfidenceLines() of the interval of `result`; no line without a result.
Message ConfidenceOf(const elements::Setup& setup, const std::optional<elements::ResultSet>& result,
                     const Accuracy& accuracy);

/// The lines of the note in words: the kind, how far off, on how many measurements, and the better model.
Message NoteLines(const BiasNote& note);

}  // namespace velmar::validation
