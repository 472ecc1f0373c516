#pragma once

#include "foundation/message.h"

namespace velmar::structures {

// Texts that several windows here share.
inline constexpr MessageRow kKeywordRow{84};
inline constexpr MessageRow kDescriptionRow{94};
inline constexpr MessageRow kAreaRow{95};
inline constexpr MessageRow kAllRow{367};
inline constexpr MessageRow kCloseRow{369};
inline constexpr MessageRow kNameRow{371};

inline constexpr MessageRow kAirborneResultsRow{1700};  ///< "Sound reduction index"
inline constexpr MessageRow kImpactResultsRow{1701};    ///< "Impact sound level"
inline constexpr MessageRow kSearchRow{1702};
inline constexpr MessageRow kDeleteRow{1703};
inline constexpr MessageRow kTakeRow{1704};
inline constexpr MessageRow kEntryGoneRow{1705};

}  // namespace velmar::structures
