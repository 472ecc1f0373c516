#pragma once

#include <optional>

#include "models/floors/footfall.h"
#include "validation/prediction.h"

namespace velmar::validation {

/// Stored text of the model of floors after EN ISO 12354-2.
inline constexpr const char* kFootfallModel = "footfall";

/// The floor of `setup` as that model predicts it; nothing where `setup` is no floor under impact or the
/// model refuses a value.
/// @throws ArithmeticFailure when a side is no number
std::optional<models::FootfallPrediction> FootfallOf(const elements::Setup& setup);

/// Every floor of `data` as that model predicts it: Ln,w, and the weighted improvement where it was measured.
PredictionOutcome PredictWithFootfall(const elements::MeasuredData& data);

}  // namespace velmar::validation
