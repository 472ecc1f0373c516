#pragma once

#include "elements/setup.h"
#include "foundation/message.h"

namespace velmar::presentation {

/// The row that names the kind of element in reports: single or double wall, glazing, floor, lining and so
/// on. Row 0 before a choice.
MessageRow KindOfElementRow(const elements::Setup& setup);

}  // namespace velmar::presentation
