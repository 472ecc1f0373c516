#pragma once

#include "foundation/message.h"

namespace velmar::models {

// What the user is told to check when the arithmetic of a plate or cavity fails.
inline constexpr MessageRow kZeroMassRow{1002};
inline constexpr MessageRow kZeroThicknessRow{1003};
inline constexpr MessageRow kInvalidStiffnessRow{1004};
inline constexpr MessageRow kZeroDimensionRow{1005};
inline constexpr MessageRow kZeroCavityDepthRow{1006};
inline constexpr MessageRow kZeroCavityLayerRow{1007};
inline constexpr MessageRow kInvalidFlowResistivityRow{1008};

}  // namespace velmar::models
