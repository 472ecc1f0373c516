#pragma once

#include <cstdint>
#include <vector>

#include <pugixml.hpp>

#include "presentation/documents/word_document.h"

namespace velmar::presentation {

/// The width of the text on the pages of the document `main_part`: of its narrowest section; a very large one
/// where it does not say.
std::int64_t PageRoom(pugi::xml_node main_part);

/// The width that a picture in `paragraph` has: of its cell, else `page`.
std::int64_t RoomOf(pugi::xml_node paragraph, std::int64_t page);

/// The pictures that stand in `paragraph`; their room is left at 0.
std::vector<WidePicture> PicturesIn(pugi::xml_node paragraph);

}  // namespace velmar::presentation
