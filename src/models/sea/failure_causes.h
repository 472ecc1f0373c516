#pragma once

#include "foundation/message.h"

namespace velmar::models {

// What a consultant is told to check when an energy balance comes to nothing.
inline constexpr MessageRow kNoTotalThicknessRow{1003};     ///< the element has no thickness
inline constexpr MessageRow kNoCavityDepthRow{1006};        ///< the cavity has no depth
inline constexpr MessageRow kNoBendingWaveRow{1050};        ///< a layer's data describe no plate
inline constexpr MessageRow kCoincidenceOnGridRow{1051};    ///< a critical frequency on a whole Hz
inline constexpr MessageRow kNoLayerRow{1052};              ///< a side without layers
inline constexpr MessageRow kNoConnectedLayerRow{1053};     ///< the layer under the connection is missing
inline constexpr MessageRow kNoConnectionBalanceRow{1054};  ///< loss factor or number of the connection
inline constexpr MessageRow kNoFillMassRow{1055};           ///< a fill without thickness or density
inline constexpr MessageRow kNoLeafBalanceRow{1056};        ///< loss factor of a layer

}  // namespace velmar::models
