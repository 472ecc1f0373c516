#pragma once

#include <QColor>
#include <array>
#include <cstddef>

namespace velmar::presentation {

// Chart.
inline constexpr QColor kCalculatedColour{0xA9, 0x03, 0x84};
inline constexpr QColor kReferenceColour{0x16, 0x25, 0x4B};
inline constexpr QColor kBaseColour{0xA0, 0xA0, 0xA0};
inline constexpr QColor kLaboratoryColour{0xE7, 0x74, 0x27};
inline constexpr QColor kInSituColour{0x00, 0xC0, 0x00};
inline constexpr QColor kVerticalGridColour{0xE0, 0xE0, 0xE0};
inline constexpr QColor kHorizontalGridColour{0xE9, 0xE9, 0xE9};

// Both drawings stand on paper, whatever the theme of the window.
inline constexpr QColor kPaperColour{0xFF, 0xFF, 0xFF};
inline constexpr QColor kInkColour{0x16, 0x25, 0x4B};
inline constexpr QColor kQuietInkColour{0x5A, 0x62, 0x72};
inline constexpr QColor kAxisColour{0x8A, 0x90, 0x9C};
inline constexpr QColor kLeaderColour{0xD0, 0xD0, 0xD0};
inline constexpr QColor kAirColour{0xE0, 0xE0, 0xE0};

/// Of the further curves of a chart, the first one again behind the last.
inline constexpr std::array<QColor, 4> kFurtherColours = {QColor{0x2F, 0x6B, 0xC4}, QColor{0x8C, 0x61, 0x2C},
                                                          QColor{0x6F, 0x4E, 0xB5}, QColor{0x59, 0x59, 0x59}};
inline constexpr QColor FurtherColour(std::size_t i) {
  return kFurtherColours.at(i % kFurtherColours.size());
}

}  // namespace velmar::presentation
