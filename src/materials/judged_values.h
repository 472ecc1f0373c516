#pragma once

#include <optional>
#include <span>

#include "elements/plausibility.h"
#include "foundation/message.h"

namespace velmar::materials {

/// What `property` is called where values are told, with its unit.
MessageRow NameOf(elements::MaterialProperty property);

/// Why values that no matter can have are refused: a heading and a line for each, with what is possible.
/// Nothing when none of `findings` is impossible.
std::optional<Message> ImpossibleValues(std::span<const elements::PropertyFinding> findings);

/// What is asked before unusual values are stored: a heading and a line for each, with what is usual. The
/// question itself is left to the caller. Nothing when none of `findings` is improbable.
std::optional<Message> ImprobableValues(std::span<const elements::PropertyFinding> findings);

}  // namespace velmar::materials
