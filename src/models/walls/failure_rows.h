#pragma once

#include "foundation/message.h"

namespace velmar::models {

// What the user is told to check when the arithmetic of a light double wall fails.
inline constexpr MessageRow kZeroLossFactorRow{1009};
inline constexpr MessageRow kZeroStudDistanceRow{1024};

}  // namespace velmar::models
