#pragma once

#include <set>
#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace velmar::presentation {

/// Removes all that stands below `root` from marker `start` to marker `end`, both included, as often as the
/// pair occurs. A table that the block cuts keeps its cells, emptied. A start without an end of its own,
/// before the next start, stays with what follows it.
/// @return whether anything was removed
bool RemoveBlocks(pugi::xml_node root, std::string_view start, std::string_view end);

/// Which of the markers stand below `root` without their other half.
std::set<std::string> UnpairedMarkers(pugi::xml_node root, std::string_view start, std::string_view end);

/// Removes every marker `marker` below `root`, with its paragraph when nothing else stands there.
/// @return whether there was one
bool RemoveMarkers(pugi::xml_node root, std::string_view marker);

}  // namespace velmar::presentation
