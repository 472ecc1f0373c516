#include "presentation/schedule/bound_styles.h"

#include <array>
#include <sstream>
#include <utility>

#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

std::string TextOf(pugi::xml_node node) {
  std::ostringstream text;
  node.print(text, "", pugi::format_raw);
  return text.str();
}

pugi::xml_node StyleById(pugi::xml_node styles, const std::string& id) {
  return styles.find_child_by_attribute("w:style", "w:styleId", id.c_str());
}

bool NamesAStyle(pugi::xml_node node) {
  constexpr std::array<std::string_view, 6> kNaming = {"w:pStyle",  "w:rStyle", "w:tblStyle",
                                                       "w:basedOn", "w:next",   "w:link"};
  for (const std::string_view name : kNaming) {
    if (name == node.name()) return true;
  }
  return false;
}

/// Puts what the document's defaults say below the style `style`: a style of its own, `id`, on which it
/// stands.
void StandOnDefaults(pugi::xml_node styles, pugi::xml_node style, pugi::xml_node defaults,
                     const std::string& id) {
  pugi::xml_node base = styles.insert_child_before("w:style", style);
  base.append_attribute("w:type") = "paragraph";
  base.append_attribute("w:customStyle") = 1;
  base.append_attribute("w:styleId") = id.c_str();
  base.append_child("w:name").append_attribute("w:val") = id.c_str();
  base.append_child("w:semiHidden");
  base.append_copy(defaults.child("w:pPrDefault").child("w:pPr"));
  base.append_copy(defaults.child("w:rPrDefault").child("w:rPr"));
  if (!style.child("w:basedOn"))
    style.insert_child_after("w:basedOn", style.child("w:name")).append_attribute("w:val") = id.c_str();
}

bool IsDefault(pugi::xml_node style, std::string_view type) {
  return style.attribute("w:default").as_bool() && type == style.attribute("w:type").value();
}

std::string FreeId(pugi::xml_node styles, const std::string& id) {
  int number = 2;
  while (StyleById(styles, id + std::to_string(number))) ++number;
  return id + std::to_string(number);
}

bool NameTaken(pugi::xml_node styles, const std::string& name) {
  return static_cast<bool>(styles.find_child(
      [&](pugi::xml_node style) { return name == style.child("w:name").attribute("w:val").value(); }));
}

}  // namespace

BoundStyles::BoundStyles(std::string_view bytes) : xml_(ParseXml(bytes, "styles")) {}

const StyleNames& BoundStyles::Take(const std::string& bytes) {
  const auto known = taken_.find(bytes);
  if (known != taken_.end()) return known->second;
  const pugi::xml_document chapter = ParseXml(bytes, "styles");
  return taken_.emplace(bytes, Merge(chapter.document_element())).first->second;
}

StyleNames BoundStyles::Merge(pugi::xml_node styles) {
  pugi::xml_node own = xml_.document_element();
  const pugi::xml_node defaults = styles.child("w:docDefaults");
  const bool other_defaults = TextOf(defaults) != TextOf(own.child("w:docDefaults"));
  StyleNames names;
  std::vector<pugi::xml_node> added;
  for (const pugi::xml_node style : styles.children("w:style")) {
    const std::string id = style.attribute("w:styleId").value();
    if (std::string_view(style.child("w:pPr").child("w:outlineLvl").attribute("w:val").value()) == "0")
      names.chapters.push_back(id);
    const pugi::xml_node same = StyleById(own, id);
    const bool is_default = IsDefault(style, "paragraph");
    if (same && TextOf(same) == TextOf(style) && !(is_default && other_defaults)) continue;
    pugi::xml_node copy = own.append_copy(style);
    added.push_back(copy);
    copy.remove_attribute("w:default");
    std::string name = style.child("w:name").attribute("w:val").value();
    if (same || NameTaken(own, name)) {
      const std::string free = FreeId(own, id);
      names.new_names[id] = free;
      copy.attribute("w:styleId").set_value(free.c_str());
      copy.child("w:name").attribute("w:val").set_value((name + " " + free.substr(id.size())).c_str());
    }
    if (is_default) {
      names.unnamed_paragraphs = copy.attribute("w:styleId").value();
      if (other_defaults) StandOnDefaults(own, copy, defaults, names.unnamed_paragraphs + "Base");
    }
  }
  for (const pugi::xml_node style : added) RenameStyles(style, names);
  return names;
}

std::string BoundStyles::Bytes() const { return XmlBytes(xml_); }

void RenameStyles(pugi::xml_node root, const StyleNames& names) {
  for (pugi::xml_node node : root.children()) {
    if (NamesAStyle(node)) {
      const auto found = names.new_names.find(node.attribute("w:val").value());
      if (found != names.new_names.end()) node.attribute("w:val").set_value(found->second.c_str());
    } else {
      RenameStyles(node, names);
    }
  }
}

}  // namespace velmar::presentation
