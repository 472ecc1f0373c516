#pragma once

#include "foundation/message.h"

namespace velmar::validation {

// Words for what this layer says; a window or the command line turns them into text.

inline constexpr MessageRow kLayeredNameRow{1930};
inline constexpr MessageRow kMonolithicNameRow{1931};

inline constexpr MessageRow kNoteForRow{1932};
inline constexpr MessageRow kNoteUnderRow{1933};
inline constexpr MessageRow kNoteOverRow{1934};
inline constexpr MessageRow kMeasurementsRow{1935};
inline constexpr MessageRow kNoteSeeRow{1936};

inline constexpr MessageRow kIntervalFromRow{1937};
inline constexpr MessageRow kIntervalToRow{1938};
inline constexpr MessageRow kNoEstimateRow{1939};
inline constexpr MessageRow kUnknownKindRow{1940};
inline constexpr MessageRow kTooFewRow{1941};
inline constexpr MessageRow kOneSourceRow{1942};
inline constexpr MessageRow kOutsideMeasuredRow{1943};
inline constexpr MessageRow kResultOutsideRow{1944};

inline constexpr MessageRow kTransferMatrixReasonRow{1945};
inline constexpr MessageRow kClayReasonRow{1946};
inline constexpr MessageRow kHeavyReasonRow{1947};
inline constexpr MessageRow kSeparateReasonRow{1948};

inline constexpr MessageRow kLayeredSourceRow{1950};
inline constexpr MessageRow kLayeredAssumptionsRow{1951};
inline constexpr MessageRow kLayeredLimitsRow{1952};
inline constexpr MessageRow kMonolithicSourceRow{1953};
inline constexpr MessageRow kMonolithicAssumptionsRow{1954};
inline constexpr MessageRow kMonolithicLimitsRow{1955};
inline constexpr MessageRow kCalculationSourceRow{1956};
inline constexpr MessageRow kCalculationAssumptionsRow{1957};
inline constexpr MessageRow kCalculationLimitsRow{1958};

inline constexpr MessageRow kLeafInputRow{1960};
inline constexpr MessageRow kCavityInputRow{1961};
inline constexpr MessageRow kSizeInputRow{1962};
inline constexpr MessageRow kStudsInputRow{1963};
inline constexpr MessageRow kNoStudsInputRow{1964};
inline constexpr MessageRow kAirInputRow{1965};
inline constexpr MessageRow kFibreInputRow{1966};
inline constexpr MessageRow kComplianceInputRow{1967};
inline constexpr MessageRow kTracksInputRow{1968};

}  // namespace velmar::validation
