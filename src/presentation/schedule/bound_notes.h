#pragma once

#include <map>
#include <string>

#include <pugixml.hpp>

namespace velmar::presentation {

/// The lists of numbered paragraphs of a chapter, taken into `numbering` of the document that it is bound
/// into under numbers that are free; each chapter begins to count anew. @return old number -> new number
std::map<std::string, std::string> TakeLists(pugi::xml_node numbering, pugi::xml_node chapter);

/// The same for footnotes or endnotes, but for their separators.
/// @param element "w:footnote" or "w:endnote"
std::map<std::string, std::string> TakeNotes(pugi::xml_node notes, pugi::xml_node chapter,
                                             const char* element);

/// Gives every element `name` below `root` the value in `attribute` that `values` has for its own.
void Renumber(pugi::xml_node root, const char* name, const char* attribute,
              const std::map<std::string, std::string>& values);

}  // namespace velmar::presentation
