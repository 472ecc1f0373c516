#include "presentation/documents/outside_links.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <pugixml.hpp>

#include "foundation/message_rows.h"
#include "presentation/documents/relationships.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr std::string_view kLists = "_rels/";
constexpr std::string_view kListEnding = ".rels";
constexpr std::string_view kDoctype = "<!DOCTYPE";

/// The part whose links the list `list` holds.
std::string OwnerOf(const std::string& list) {
  const std::size_t folder = list.rfind(kLists);
  std::string owner = list.substr(0, folder) + list.substr(folder + kLists.size());
  return owner.substr(0, owner.size() - kListEnding.size());
}

bool IsList(const std::string& part) {
  return part.ends_with(kListEnding) && part.find(kLists) != std::string::npos;
}

std::string KindOf(const std::string& type) { return type.substr(type.rfind('/') + 1); }

bool Loads(const WrittenLink& link) { return link.external && KindOf(link.type) != "hyperlink"; }

/// Takes out what names one of `ids` below `root`: the attribute of a picture that is linked, else the
/// element.
void RemoveNaming(pugi::xml_node root, const std::vector<std::string>& ids) {
  for (pugi::xml_node node = root.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    bool removed = false;
    for (pugi::xml_attribute attribute = node.first_attribute(); attribute;) {
      const pugi::xml_attribute following = attribute.next_attribute();
      const std::string_view name = attribute.name();
      const bool names = name.starts_with("r:") && std::ranges::count(ids, attribute.value()) > 0;
      if (names && (name == "r:link" || name == "r:href")) {
        node.remove_attribute(attribute);
      } else if (names) {
        root.remove_child(node);
        removed = true;
        break;
      }
      attribute = following;
    }
    if (!removed) RemoveNaming(node, ids);
    node = next;
  }
}

/// `text` as UTF-16 with the low byte first or last.
std::string Wide(std::string_view text, bool low_first) {
  std::string wide;
  for (const char letter : text) {
    if (!low_first) wide += '\0';
    wide += letter;
    if (low_first) wide += '\0';
  }
  return wide;
}

}  // namespace

std::vector<OutsideLink> OutsideLinksOf(const Package& package) {
  std::vector<OutsideLink> outside;
  for (const std::string& part : package.Names()) {
    if (!IsList(part)) continue;
    for (const WrittenLink& link : LinksOf(package, OwnerOf(part))) {
      if (Loads(link))
        outside.push_back({.part = OwnerOf(part), .kind = KindOf(link.type), .target = link.target});
    }
  }
  return outside;
}

void CutOutsideLinks(Package& package) {
  for (const std::string& list : package.Names()) {
    if (!IsList(list)) continue;
    const std::string owner = OwnerOf(list);
    std::vector<WrittenLink> links = LinksOf(package, owner);
    std::vector<std::string> ids;
    for (const WrittenLink& link : links) {
      if (Loads(link)) ids.push_back(link.id);
    }
    if (ids.empty()) continue;
    std::erase_if(links, Loads);
    PutLinks(package, owner, links);
    if (!package.Has(owner)) continue;
    pugi::xml_document document = ParseXml(package.Part(owner), owner);
    RemoveNaming(document, ids);
    package.Put(owner, XmlBytes(document));
  }
}

void RefuseDoctypes(const Package& package) {
  const std::array<std::string, 3> spellings = {std::string(kDoctype), Wide(kDoctype, true),
                                                Wide(kDoctype, false)};
  constexpr std::array<std::string_view, 4> kXml = {".xml", ".rels", ".vml", ".svg"};
  for (const std::string& part : package.Names()) {
    if (std::ranges::none_of(kXml, [&](std::string_view ending) { return part.ends_with(ending); })) continue;
    const std::string& bytes = package.Part(part);
    for (const std::string& spelling : spellings) {
      if (bytes.find(spelling) != std::string::npos)
        throw TemplateFailure(kTemplateHostileRow, part + ": document type declaration");
    }
  }
}

}  // namespace velmar::presentation
