#pragma once

#include <optional>

#include "elements/measured_construction.h"
#include "elements/setup.h"
#include "validation/prediction.h"

namespace velmar::validation {

/// `setup` entered as a free list of layers, with what LayeredElementOf() makes of it; nothing where the
/// layered model does not apply or the list has no room for all layers.
/// @param frame what holds two light leaves; kNone: AssumedFrame()
std::optional<elements::Setup> MultilayerSetupOf(const elements::Setup& setup,
                                                 elements::Frame frame = elements::Frame::kNone);

/// `construction` as a free list of layers, with all that its source tells; nothing where none of its set-ups
/// can be one.
std::optional<elements::MeasuredSetup> MultilayerSetupOf(const elements::MeasuredConstruction& construction);

/// The airborne constructions of `data` as the calculation of a free list of layers predicts them.
PredictionOutcome PredictWithMultilayer(const elements::MeasuredData& data);

}  // namespace velmar::validation
