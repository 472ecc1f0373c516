#pragma once

#include <optional>

#include "elements/keyed_values.h"
#include "elements/result_set.h"
#include "elements/setup.h"

namespace velmar::elements {

/// Where a project keeps the rating that its element is required to have: Rw at least, Ln,w at most, in dB.
inline const ValueKey<double> kRequirementKey{"requisito.valore"};

/// The required rating in dB; nothing without one.
std::optional<double> RequirementOf(const Setup& setup);

/// `rating_db` is required from now on; nothing: no rating is.
/// @throws std::invalid_argument when it is not finite
void SetRequirement(Setup& setup, std::optional<double> rating_db);

/// By how many dB `result` is better than `required_db`: Rw above it, or Ln,w below it where the result is
/// one of impact sound. Negative: so much is missing. Nothing where the result has neither.
std::optional<double> MarginTo(double required_db, const ResultSet& result);

}  // namespace velmar::elements
