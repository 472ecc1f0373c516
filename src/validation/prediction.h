#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/octave_rating.h"
#include "elements/measured_construction.h"
#include "validation/element_kind.h"

namespace velmar::validation {

/// What the error of a model is seen to depend on.
struct Features {
  double mass_kg_m2 = 0.0;  ///< surface mass of the whole element
  double depth_mm = 0.0;    ///< of the cavity; 0 without one
  bool filled = false;      ///< the cavity holds fibre

  bool operator==(const Features&) const = default;
};

/// The features of `setup` as its calculation reads it; a depth that is no number counts as none.
Features FeaturesOf(const elements::Setup& setup);

/// A level minus the measured one per octave, 63 Hz to 4000 Hz, where both are known.
using OctaveErrors = std::array<std::optional<double>, acoustics::kOctaveCount>;

/// A measured construction as one model predicts it.
struct Prediction {
  std::string measured{};  ///< id of the construction
  std::string group{};
  std::string source{};  ///< short name of where it was published
  std::string model{};   ///< the stored text of a calculation, or "layered", "monolithic"
  ElementKind kind{};    ///< as the set-up tells it, or with the frame of the construction
  /// The model was told what holds the boards, which the set-up of a calculation does not say.
  bool frame_known = false;
  std::string quantity{};  ///< "Rw", "STC", "Rw+C", "Rw (octaves)", "DeltaRw", "Lnw", "DeltaLnw"
  double predicted = 0.0;  ///< dB
  double value = 0.0;      ///< dB, measured
  Features features{};
  OctaveErrors octave_errors{};

  double Error() const { return predicted - value; }
};

/// What became of one set-up: a model may refuse a construction that it was given.
struct PredictionOutcome {
  std::vector<Prediction> predictions{};
  std::vector<elements::UncoveredConstruction> refused{};  ///< id and what the model said, in English
};

/// Every construction of `data` as every calculation that covers it predicts it: RunCalculation() of its
/// set-up, prepared as a run prepares it, ranges of relations left without a question, as the program does
/// it.
///
/// The rating compared is the one that was published, in this order: Rw, STC, Rw + C, Rw out of octave bands;
/// the prediction is rated in the same way. Floors: Ln,w and its improvement.
PredictionOutcome PredictWithCalculations(const elements::MeasuredData& data);

/// `result`, a spectrum of R in dB, rated as `construction` was, and the errors of its octaves. Nothing when
/// the construction has no rating of airborne insulation.
std::optional<Prediction> RateAsMeasured(const elements::MeasuredConstruction& construction,
                                         const acoustics::Spectrum& result);

}  // namespace velmar::validation
