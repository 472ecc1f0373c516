#include "presentation/documents/picture_parts.h"

#include "presentation/documents/relationships.h"

namespace velmar::presentation {

PictureParts AddPictureParts(Package& package, const std::string& folder, const Picture& picture) {
  int number = 1;
  const auto name = [&](const char* ending) { return folder + "/velmar" + std::to_string(number) + ending; };
  while (package.Has(name(".png"))) ++number;
  PictureParts parts{.png = name(".png")};
  package.Put(parts.png, picture.png);
  AddDefaultContentType(package, "png", "image/png");
  if (picture.svg.empty()) return parts;
  parts.svg = name(".svg");
  package.Put(parts.svg, picture.svg);
  AddDefaultContentType(package, "svg", "image/svg+xml");
  return parts;
}

}  // namespace velmar::presentation
