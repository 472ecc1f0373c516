#pragma once

#include <cstdint>
#include <string>

#include <pugixml.hpp>

#include "presentation/reports/picture.h"

namespace velmar::presentation {

/// Puts a drawing with a picture into `run`, before `before`.
/// @param relationship identifier of the link to the picture's part
/// @param number unique among the drawings of the document
void InsertDrawing(pugi::xml_node run, pugi::xml_node before, const Picture& picture,
                   const std::string& relationship, std::uint32_t number);

/// A number that no drawing below `root` has, nor any above.
std::uint32_t FreeDrawingNumber(pugi::xml_node root);

}  // namespace velmar::presentation
