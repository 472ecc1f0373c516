#pragma once

#include <cstdint>
#include <string>

#include <pugixml.hpp>

#include "presentation/documents/picture.h"

namespace velmar::presentation {

/// The links of a document to the parts of a picture.
struct PictureLinks {
  std::string png{};
  std::string svg{};  ///< empty for a picture without vectors
};

/// The names that links to pictures and their parts go by.
inline constexpr const char* kImageRelationship =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/image";

/// Adds the extension that leads from the bitmap `blip` to the same picture as vectors, link `svg`.
void AddVectors(pugi::xml_node blip, const std::string& svg);

/// Puts a drawing with a picture into `run`, before `before`.
/// @param links identifiers of the links to the picture's parts
/// @param number unique among the drawings of the document
void InsertDrawing(pugi::xml_node run, pugi::xml_node before, const Picture& picture,
                   const PictureLinks& links, std::uint32_t number);

/// A number that no drawing below `root` has, nor any above.
std::uint32_t FreeDrawingNumber(pugi::xml_node root);

}  // namespace velmar::presentation
