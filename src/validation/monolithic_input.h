#pragma once

#include <optional>

#include "elements/setup.h"
#include "models/monolithic/monolithic_element.h"

namespace velmar::validation {

/// The single element of `setup` as EN ISO 12354-1, annex B, takes it: masonry or concrete in one leaf. The
/// heaviest layer bears, with its quasi-longitudinal speed sqrt(E / (rho (1 - nu²))); all others only weigh.
/// Nothing for any other kind of element, or where a field holds no number.
std::optional<models::MonolithicElement> MonolithicElementOf(const elements::Setup& setup);

}  // namespace velmar::validation
