#include "presentation/documents/word_picture.h"

#include <algorithm>

#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr const char* kWordprocessingDrawing =
    "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing";
constexpr const char* kDrawing = "http://schemas.openxmlformats.org/drawingml/2006/main";
constexpr const char* kPictureNamespace = "http://schemas.openxmlformats.org/drawingml/2006/picture";
constexpr const char* kRelationships = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

void SetSize(pugi::xml_node node, const Picture& picture) {
  node.append_attribute("cx") = static_cast<long long>(picture.width_emu);
  node.append_attribute("cy") = static_cast<long long>(picture.height_emu);
}

void Describe(pugi::xml_node properties, const Picture& picture, std::uint32_t number) {
  properties.append_attribute("id") = number;
  properties.append_attribute("name") = ("Immagine " + std::to_string(number)).c_str();
  properties.append_attribute("descr") = LegalText(picture.alternative_text).c_str();
}

void AppendPicture(pugi::xml_node data, const Picture& picture, const PictureLinks& links,
                   std::uint32_t number) {
  pugi::xml_node node = data.append_child("pic:pic");
  node.append_attribute("xmlns:pic") = kPictureNamespace;
  pugi::xml_node properties = node.append_child("pic:nvPicPr");
  Describe(properties.append_child("pic:cNvPr"), picture, number);
  properties.append_child("pic:cNvPicPr");
  pugi::xml_node fill = node.append_child("pic:blipFill");
  pugi::xml_node blip = fill.append_child("a:blip");
  blip.append_attribute("xmlns:r") = kRelationships;
  blip.append_attribute("r:embed") = links.png.c_str();
  AddVectors(blip, links.svg);
  fill.append_child("a:stretch").append_child("a:fillRect");
  pugi::xml_node shape = node.append_child("pic:spPr");
  pugi::xml_node transform = shape.append_child("a:xfrm");
  pugi::xml_node offset = transform.append_child("a:off");
  offset.append_attribute("x") = 0;
  offset.append_attribute("y") = 0;
  SetSize(transform.append_child("a:ext"), picture);
  pugi::xml_node geometry = shape.append_child("a:prstGeom");
  geometry.append_attribute("prst") = "rect";
  geometry.append_child("a:avLst");
}

}  // namespace

void AddVectors(pugi::xml_node blip, const std::string& svg) {
  if (svg.empty()) return;
  pugi::xml_node extension = blip.append_child("a:extLst").append_child("a:ext");
  extension.append_attribute("uri") = "{96DAC541-7B7A-43D3-8B79-37D633B846F1}";
  pugi::xml_node node = extension.append_child("asvg:svgBlip");
  node.append_attribute("xmlns:asvg") = "http://schemas.microsoft.com/office/drawing/2016/SVG/main";
  node.append_attribute("xmlns:r") = kRelationships;
  node.append_attribute("r:embed") = svg.c_str();
}

void InsertDrawing(pugi::xml_node run, pugi::xml_node before, const Picture& picture,
                   const PictureLinks& links, std::uint32_t number) {
  pugi::xml_node drawing = run.insert_child_before("w:drawing", before);
  pugi::xml_node place = drawing.append_child("wp:inline");
  place.append_attribute("xmlns:wp") = kWordprocessingDrawing;
  for (const char* side : {"distT", "distB", "distL", "distR"}) place.append_attribute(side) = 0;
  SetSize(place.append_child("wp:extent"), picture);
  Describe(place.append_child("wp:docPr"), picture, number);
  pugi::xml_node frame = place.append_child("wp:cNvGraphicFramePr");
  pugi::xml_node locks = frame.append_child("a:graphicFrameLocks");
  locks.append_attribute("xmlns:a") = kDrawing;
  locks.append_attribute("noChangeAspect") = 1;
  pugi::xml_node graphic = place.append_child("a:graphic");
  graphic.append_attribute("xmlns:a") = kDrawing;
  pugi::xml_node data = graphic.append_child("a:graphicData");
  data.append_attribute("uri") = kPictureNamespace;
  AppendPicture(data, picture, links, number);
}

std::uint32_t FreeDrawingNumber(pugi::xml_node root) {
  std::uint32_t highest = 0;
  for (const pugi::xml_node node : root.children()) {
    if (LocalName(node) == "docPr") highest = std::max(highest, node.attribute("id").as_uint());
    highest = std::max(highest, FreeDrawingNumber(node) - 1);
  }
  return highest + 1;
}

}  // namespace velmar::presentation
