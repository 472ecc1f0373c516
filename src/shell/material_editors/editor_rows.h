#pragma once

#include "foundation/message.h"

namespace velmar::material_editors {

// The words of the editors that more than one of them shows.
inline constexpr MessageRow kNameRow{326};
inline constexpr MessageRow kDescriptionRow{327};
inline constexpr MessageRow kThicknessRow{328};
inline constexpr MessageRow kDensityRow{329};
inline constexpr MessageRow kYoungsModulusRow{330};
inline constexpr MessageRow kLossFactorRow{334};
inline constexpr MessageRow kPoissonsRatioRow{335};
inline constexpr MessageRow kKeywordRow{336};
inline constexpr MessageRow kYoungsModulusTipRow{1661};
inline constexpr MessageRow kLossFactorTipRow{1663};
inline constexpr MessageRow kPoissonsRatioTipRow{1664};
inline constexpr MessageRow kKeywordTipRow{1665};
inline constexpr MessageRow kPictureRow{1658};

}  // namespace velmar::material_editors
