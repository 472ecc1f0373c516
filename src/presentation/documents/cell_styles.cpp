#include "presentation/documents/cell_styles.h"

#include <algorithm>
#include <iterator>

#include "foundation/message_rows.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr int kFirstOwnFormat = 164;
constexpr int kGeneralFormat = 0;

int CountOfChildren(pugi::xml_node parent, const char* name) {
  const auto children = parent.children(name);
  return static_cast<int>(std::distance(children.begin(), children.end()));
}

void Set(pugi::xml_node node, const char* attribute, const char* value) {
  pugi::xml_attribute found = node.attribute(attribute);
  (found ? found : node.append_attribute(attribute)) = value;
}

void Set(pugi::xml_node node, const char* attribute, int value) {
  Set(node, attribute, std::to_string(value).c_str());
}

/// Gives edge `name` of `border` a thin line. The edges have a fixed order.
void DrawEdge(pugi::xml_node border, const char* name) {
  pugi::xml_node edge = border.child(name);
  if (!edge) return;
  Set(edge, "style", "thin");
  edge.remove_children();
  edge.append_child("color").append_attribute("auto") = 1;
}

void CompleteEdges(pugi::xml_node border) {
  pugi::xml_node before;
  for (const char* name : {"left", "right", "top", "bottom"}) {
    pugi::xml_node edge = border.child(name);
    if (!edge) edge = before ? border.insert_child_after(name, before) : border.prepend_child(name);
    before = edge;
  }
}

}  // namespace

CellStyles::CellStyles(std::string_view bytes, const std::string& name) : xml_(ParseXml(bytes, name)) {
  const pugi::xml_node sheet = xml_.child("styleSheet");
  if (!sheet.child("cellXfs").child("xf") || !sheet.child("borders")) {
    throw TemplateFailure(kTemplateDamagedRow, name + ": no cell styles");
  }
}

std::string CellStyles::Bytes() const { return XmlBytes(xml_); }

pugi::xml_node CellStyles::Style(int number) const {
  const auto styles = xml_.child("styleSheet").child("cellXfs").children("xf");
  auto found = styles.begin();
  for (int i = 0; i < number && found != styles.end(); ++i) ++found;
  return found == styles.end() ? *styles.begin() : *found;
}

int CellStyles::BorderWith(int base, const StyleChange& change) {
  pugi::xml_node borders = xml_.child("styleSheet").child("borders");
  pugi::xml_node original = borders.child("border");
  for (int i = 0; i < base && original.next_sibling("border"); ++i)
    original = original.next_sibling("border");
  pugi::xml_node border = original ? borders.append_copy(original) : borders.append_child("border");
  CompleteEdges(border);
  if (change.left) DrawEdge(border, "left");
  if (change.right) DrawEdge(border, "right");
  if (change.top) DrawEdge(border, "top");
  if (change.bottom) DrawEdge(border, "bottom");
  const int count = CountOfChildren(borders, "border");
  Set(borders, "count", count);
  return count - 1;
}

int CellStyles::FormatOf(const std::string& code) {
  pugi::xml_node sheet = xml_.child("styleSheet");
  pugi::xml_node formats = sheet.child("numFmts");
  if (!formats) formats = sheet.prepend_child("numFmts");
  int highest = kFirstOwnFormat - 1;
  for (const pugi::xml_node format : formats.children("numFmt")) {
    if (code == format.attribute("formatCode").value()) return format.attribute("numFmtId").as_int();
    highest = std::max(highest, format.attribute("numFmtId").as_int());
  }
  pugi::xml_node format = formats.append_child("numFmt");
  format.append_attribute("numFmtId") = highest + 1;
  format.append_attribute("formatCode") = code.c_str();
  Set(formats, "count", CountOfChildren(formats, "numFmt"));
  return highest + 1;
}

int CellStyles::BoldOf(int font) {
  pugi::xml_node fonts = xml_.child("styleSheet").child("fonts");
  pugi::xml_node original = fonts.child("font");
  for (int i = 0; i < font && original.next_sibling("font"); ++i) original = original.next_sibling("font");
  pugi::xml_node bold = original ? fonts.append_copy(original) : fonts.append_child("font");
  if (!bold.child("b")) bold.prepend_child("b");
  const int count = CountOfChildren(fonts, "font");
  Set(fonts, "count", count);
  return count - 1;
}

int CellStyles::Derived(int base, const StyleChange& change) {
  const auto known = derived_.find({base, change});
  if (known != derived_.end()) return known->second;
  pugi::xml_node styles = xml_.child("styleSheet").child("cellXfs");
  pugi::xml_node style = styles.append_copy(Style(base));
  if (change.left || change.right || change.top || change.bottom) {
    Set(style, "borderId", BorderWith(style.attribute("borderId").as_int(), change));
    Set(style, "applyBorder", 1);
  }
  if (!change.number_format.empty() && style.attribute("numFmtId").as_int() == kGeneralFormat) {
    Set(style, "numFmtId", FormatOf(change.number_format));
    Set(style, "applyNumberFormat", 1);
  }
  if (change.bold) {
    Set(style, "fontId", BoldOf(style.attribute("fontId").as_int()));
    Set(style, "applyFont", 1);
  }
  if (!change.horizontal.empty() || change.wrap) {
    pugi::xml_node alignment = style.child("alignment");
    if (!alignment) alignment = style.prepend_child("alignment");
    if (!change.horizontal.empty()) Set(alignment, "horizontal", change.horizontal.c_str());
    Set(alignment, "vertical", change.at_top ? "top" : "center");
    if (change.wrap) Set(alignment, "wrapText", 1);
    Set(style, "applyAlignment", 1);
  }
  const int count = CountOfChildren(styles, "xf");
  Set(styles, "count", count);
  derived_.emplace(std::pair{base, change}, count - 1);
  return count - 1;
}

}  // namespace velmar::presentation
