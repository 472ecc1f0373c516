#pragma once

#include <optional>
#include <span>
#include <string>

#include "elements/plausibility.h"
#include "foundation/message.h"

namespace velmar::materials {

/// The box of an editor that holds `property`: "Text4" of `Form5`, "Text9" of `Form6`, ...; empty for none.
std::string BoxOf(elements::MaterialKind kind, elements::MaterialProperty property);

/// Why values that no matter can have are refused: a heading and a line for each, with what is possible.
/// Nothing when none of `findings` is impossible.
std::optional<Message> ImpossibleValues(std::span<const elements::PropertyFinding> findings);

/// What is asked before unusual values are stored: a heading and a line for each, with what is usual. The
/// question itself is left to the caller. Nothing when none of `findings` is improbable.
std::optional<Message> ImprobableValues(std::span<const elements::PropertyFinding> findings);

}  // namespace velmar::materials
