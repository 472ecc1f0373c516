#pragma once

#include <optional>
#include <string_view>

#include "validation/prediction.h"

namespace velmar::validation {

/// Stored texts of the new models.
inline constexpr const char* kLayeredModel = "layered";
inline constexpr const char* kMonolithicModel = "monolithic";

/// The set-up that says most of a construction: the one with a distance of studs, and the fill with its flow
/// resistance where one of the set-ups has it; nothing where the layered model describes none of them.
std::optional<elements::MeasuredSetup> FullestSetup(const elements::MeasuredConstruction& construction);

/// `spectrum`, what `model` makes of `measured` in dB, beside the measurement; nothing where no airborne
/// rating was published.
std::optional<Prediction> PredictionOf(const elements::MeasuredConstruction& construction,
                                       const elements::MeasuredSetup& measured, std::string_view model,
                                       const acoustics::Spectrum& spectrum);

/// The airborne constructions of `data` as the layered model predicts them: once for every set-up, with what
/// the set-up tells, and once with the frame and the fill that the construction has.
PredictionOutcome PredictWithLayered(const elements::MeasuredData& data);

/// The layered model's spectrum of R in dB for `setup`; nothing where it does not apply or refuses a value.
/// @param frame what holds two light leaves; kNone: what the calculation of the set-up takes for granted
std::optional<acoustics::Spectrum> LayeredSpectrum(const elements::Setup& setup,
                                                   elements::Frame frame = elements::Frame::kNone);

/// The heavy single elements of `data` as the monolithic model predicts them, once for every set-up.
PredictionOutcome PredictWithMonolithic(const elements::MeasuredData& data);

/// The monolithic model's spectrum of R in dB for `setup`, in a laboratory; nothing where it does not apply
/// or refuses a value.
std::optional<acoustics::Spectrum> MonolithicSpectrum(const elements::Setup& setup);

/// PredictWithCalculations(), the free list of layers and all new models.
PredictionOutcome PredictWithAllModels(const elements::MeasuredData& data);

}  // namespace velmar::validation
