#pragma once

#include <string>

#include "foundation/decimal.h"

namespace velmar::presentation {

/// The number that a text box holds, 0 when it holds none.
inline double NumberOf(const std::string& text) { return ParseDecimal(text).value_or(0.0); }

}  // namespace velmar::presentation
