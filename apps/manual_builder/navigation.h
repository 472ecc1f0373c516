#pragma once

#include <string>
#include <vector>

#include "manual_builder/manual_pages.h"

namespace velmar::manual {

/// Gives the document `file` (PDF) bookmarks for `headings`, and makes `links` lead to them; Qt writes
/// neither. Pages are counted from the first of the document.
/// @throws std::exception when the file cannot be read or written
void AddNavigation(const std::string& file, const std::vector<PlacedHeading>& headings,
                   const std::vector<PlacedLink>& links);

}  // namespace velmar::manual
