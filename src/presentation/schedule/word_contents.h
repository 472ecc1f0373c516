#pragma once

#include <string>
#include <vector>

#include <pugixml.hpp>

namespace velmar::presentation {

/// A line of a list of contents.
struct ContentsEntry {
  std::string text{};
  std::string bookmark{};  ///< around the heading
};

/// Makes `paragraph`, which is empty, a heading in `style`.
void AppendHeading(pugi::xml_node paragraph, const char* style, const std::string& text);

/// Puts the bookmark `name` around what stands in `paragraph`.
void MarkHeading(pugi::xml_node paragraph, const std::string& name, int number);

/// Puts a list of contents before `before`: each line with a link to its heading and the number of its page
/// as a field of its own. Inside the field of a whole list some word processors take the numbers for text and
/// never count them.
void InsertContents(pugi::xml_node before, const std::vector<ContentsEntry>& entries);

}  // namespace velmar::presentation
