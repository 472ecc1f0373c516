#pragma once

#include <string>

#include "elements/measured_construction.h"
#include "validation/prediction.h"

namespace velmar::validation_builder {

/// docs/validation.md: how the figures come about, the table of accuracy, the coverage of the intervals, the
/// model marked for each kind of element, and what is not covered.
std::string ValidationDocument(const elements::MeasuredData& data,
                               const validation::PredictionOutcome& outcome);

}  // namespace velmar::validation_builder
