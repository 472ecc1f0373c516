#pragma once

#include <string_view>

namespace velmar::storage {

/// The layouts that a project file can have, by the code its first line gives.
inline constexpr int kOldestLayout = 0;
inline constexpr int kRelease14Layout = 4;  ///< counts the types of a SEA cavity from another beginning
inline constexpr int kCurrentLayout = 5;    ///< from this code on: rows 6 and 7, check lines

/// The version code of a file whose first line is `header`: 5 for "VELMAR 2...", 4 for a header that contains
/// "VELMAR 1.5" or is "VELMAR 1.4"; any other header without a "." is 0, one whose last "." stands before a
/// number has that number (at most 1000), and all others are 4. Blanks at the beginning do not count.
int VersionCode(std::string_view header);

}  // namespace velmar::storage
