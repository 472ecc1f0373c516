#pragma once

#include <array>
#include <cstddef>

namespace velmar::models {

/// Sixteen angles side by side.
inline constexpr std::size_t kAngleLanes = 16;
using Lanes = std::array<double, kAngleLanes>;

}  // namespace velmar::models
