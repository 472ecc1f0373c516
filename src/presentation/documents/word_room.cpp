#include "presentation/documents/word_room.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr std::int64_t kEmuPerTwip = 635;
constexpr std::int64_t kNoLimit = std::numeric_limits<std::int64_t>::max();

void FindSections(pugi::xml_node root, std::int64_t& narrowest) {
  for (const pugi::xml_node node : root.children()) {
    if (std::string_view(node.name()) == "w:sectPr") {
      const pugi::xml_node margins = node.child("w:pgMar");
      const std::int64_t width = node.child("w:pgSz").attribute("w:w").as_llong() -
                                 margins.attribute("w:left").as_llong() -
                                 margins.attribute("w:right").as_llong();
      if (width > 0) narrowest = std::min(narrowest, width * kEmuPerTwip);
    } else {
      FindSections(node, narrowest);
    }
  }
}

void FindPictures(pugi::xml_node root, std::vector<WidePicture>& pictures) {
  for (const pugi::xml_node node : root.children()) {
    if (LocalName(node) == "inline" || LocalName(node) == "anchor") {
      pictures.push_back({.name = node.child("wp:docPr").attribute("name").value(),
                          .width_emu = node.child("wp:extent").attribute("cx").as_llong()});
    } else if (std::string_view(node.name()) != "w:p") {
      FindPictures(node, pictures);
    }
  }
}

}  // namespace

std::int64_t PageRoom(pugi::xml_node main_part) {
  std::int64_t narrowest = kNoLimit;
  FindSections(main_part, narrowest);
  return narrowest;
}

std::int64_t RoomOf(pugi::xml_node paragraph, std::int64_t page) {
  for (pugi::xml_node node = paragraph.parent(); node; node = node.parent()) {
    if (std::string_view(node.name()) != "w:tc") continue;
    const pugi::xml_node width = node.child("w:tcPr").child("w:tcW");
    if (std::string_view(width.attribute("w:type").value()) != "dxa") return page;
    const std::int64_t twips = width.attribute("w:w").as_llong();
    return twips > 0 ? twips * kEmuPerTwip : page;
  }
  return page;
}

std::vector<WidePicture> PicturesIn(pugi::xml_node paragraph) {
  std::vector<WidePicture> pictures;
  FindPictures(paragraph, pictures);
  return pictures;
}

}  // namespace velmar::presentation
