#pragma once

#include <QColor>
#include <array>

namespace velmar::presentation {

// Chart.
inline constexpr QColor kCalculatedColour{0xA9, 0x03, 0x84};
inline constexpr QColor kReferenceColour{0x16, 0x25, 0x4B};
inline constexpr QColor kBaseColour{0xA0, 0xA0, 0xA0};
inline constexpr QColor kLaboratoryColour{0xE7, 0x74, 0x27};
inline constexpr QColor kInSituColour{0x00, 0xC0, 0x00};
/// What other models say, one colour each.
inline constexpr std::array kOpinionColours = {QColor{0x1F, 0x77, 0xB4}, QColor{0x8C, 0x56, 0x4B},
                                               QColor{0xB8, 0x86, 0x0B}, QColor{0x2F, 0x4F, 0x4F}};
inline constexpr QColor kOctavesColour{0x2A, 0x6E, 0xBB};
inline constexpr QColor kFormerColour{0xD9, 0x8F, 0xC9};
inline constexpr QColor kRequirementColour{0x00, 0x7A, 0x87};
inline constexpr QColor kDeviationColour{0xD0, 0x3A, 0x2B, 0x46};
inline constexpr QColor kVerticalGridColour{0xE0, 0xE0, 0xE0};
inline constexpr QColor kHorizontalGridColour{0xE9, 0xE9, 0xE9};

// Both drawings stand on paper, whatever the theme of the window.
inline constexpr QColor kPaperColour{0xFF, 0xFF, 0xFF};
inline constexpr QColor kInkColour{0x16, 0x25, 0x4B};
inline constexpr QColor kQuietInkColour{0x5A, 0x62, 0x72};
inline constexpr QColor kAxisColour{0x8A, 0x90, 0x9C};
inline constexpr QColor kLeaderColour{0xD0, 0xD0, 0xD0};
inline constexpr QColor kAirColour{0xE0, 0xE0, 0xE0};

}  // namespace velmar::presentation
