#include "presentation/documents/relationships.h"

#include <algorithm>

#include "foundation/message_rows.h"
#include "presentation/documents/template_failure.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr const char* kContentTypes = "[Content_Types].xml";
constexpr const char* kRelationshipsNamespace =
    "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr const char* kEmptyList =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"/>)";

std::string FolderOf(const std::string& part) {
  const std::size_t slash = part.rfind('/');
  return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

std::string RelationshipsPart(const std::string& part) {
  const std::string folder = FolderOf(part);
  return folder + "_rels/" + part.substr(folder.size()) + ".rels";
}

/// `target`, as written in the links of a part in `folder`, as a name from the root.
std::string Resolve(const std::string& folder, std::string_view target) {
  std::string path = target.starts_with('/') ? std::string(target.substr(1)) : folder + std::string(target);
  std::vector<std::string> segments;
  std::size_t begin = 0;
  while (begin <= path.size()) {
    const std::size_t end = std::min(path.find('/', begin), path.size());
    const std::string segment = path.substr(begin, end - begin);
    if (segment == "..") {
      if (segments.empty()) throw TemplateFailure(kTemplateHostileRow, "link leaves the package: " + path);
      segments.pop_back();
    } else if (!segment.empty() && segment != ".") {
      segments.push_back(segment);
    }
    begin = end + 1;
  }
  std::string name;
  for (const std::string& segment : segments) name += (name.empty() ? "" : "/") + segment;
  return name;
}

}  // namespace

std::vector<Relationship> RelationshipsOf(const Package& package, const std::string& part) {
  const std::string list = RelationshipsPart(part);
  std::vector<Relationship> relationships;
  if (!package.Has(list)) return relationships;
  const pugi::xml_document document = ParseXml(package.Part(list), list);
  for (const pugi::xml_node node : document.document_element().children("Relationship")) {
    if (std::string_view(node.attribute("TargetMode").value()) == "External") continue;
    relationships.push_back({.id = node.attribute("Id").value(),
                             .type = node.attribute("Type").value(),
                             .target = Resolve(FolderOf(part), node.attribute("Target").value())});
  }
  return relationships;
}

std::string ContentTypeOf(const Package& package, const std::string& part) {
  const pugi::xml_document types = ParseXml(package.Part(kContentTypes), kContentTypes);
  const std::string name = "/" + part;
  for (const pugi::xml_node node : types.document_element().children("Override")) {
    if (name == node.attribute("PartName").value()) return node.attribute("ContentType").value();
  }
  return {};
}

std::vector<WrittenLink> LinksOf(const Package& package, const std::string& part) {
  std::vector<WrittenLink> links;
  if (!package.Has(RelationshipsPart(part))) return links;
  for (const Relationship& inside : RelationshipsOf(package, part))
    links.push_back({.id = inside.id, .type = inside.type, .target = inside.target});
  const pugi::xml_document document =
      ParseXml(package.Part(RelationshipsPart(part)), RelationshipsPart(part));
  for (const pugi::xml_node node : document.document_element().children("Relationship")) {
    if (std::string_view(node.attribute("TargetMode").value()) != "External") continue;
    links.push_back({.id = node.attribute("Id").value(),
                     .type = node.attribute("Type").value(),
                     .target = node.attribute("Target").value(),
                     .external = true});
  }
  return links;
}

void PutLinks(Package& package, const std::string& part, const std::vector<WrittenLink>& links) {
  pugi::xml_document document;
  pugi::xml_node root = document.append_child("Relationships");
  root.append_attribute("xmlns") = kRelationshipsNamespace;
  for (const WrittenLink& link : links) {
    pugi::xml_node node = root.append_child("Relationship");
    node.append_attribute("Id") = link.id.c_str();
    node.append_attribute("Type") = link.type.c_str();
    node.append_attribute("Target") = (link.external ? link.target : "/" + link.target).c_str();
    if (link.external) node.append_attribute("TargetMode") = "External";
  }
  package.Put(RelationshipsPart(part), XmlBytes(document));
}

std::vector<std::string> TargetsOf(const Package& package, const std::string& part, std::string_view kind) {
  const std::string end = "/" + std::string(kind);
  std::vector<std::string> targets;
  for (const Relationship& relationship : RelationshipsOf(package, part)) {
    if (relationship.type.ends_with(end)) targets.push_back(relationship.target);
  }
  return targets;
}

std::string MainPart(const Package& package, std::string_view content) {
  const std::vector<std::string> targets = TargetsOf(package, "", "officeDocument");
  if (targets.empty()) throw TemplateFailure(kTemplateDamagedRow, "no main part");
  const std::string type = ContentTypeOf(package, targets.front());
  if (type.find(content) == std::string::npos) {
    throw TemplateFailure(kTemplateDamagedRow, "the main part is of type '" + type + "'");
  }
  return targets.front();
}

std::string AddRelationship(Package& package, const std::string& part, const std::string& type,
                            const std::string& target) {
  const std::string list = RelationshipsPart(part);
  pugi::xml_document document = ParseXml(package.Has(list) ? package.Part(list) : kEmptyList, list);
  pugi::xml_node root = document.document_element();
  int number = 1;
  const auto taken = [&](const std::string& id) {
    return root.find_child_by_attribute("Relationship", "Id", id.c_str());
  };
  while (taken("rId" + std::to_string(number))) ++number;
  std::string id = "rId" + std::to_string(number);
  pugi::xml_node node = root.append_child("Relationship");
  node.append_attribute("Id") = id.c_str();
  node.append_attribute("Type") = type.c_str();
  node.append_attribute("Target") = ("/" + target).c_str();
  package.Put(list, XmlBytes(document));
  return id;
}

void RemoveRelationship(Package& package, const std::string& part, const std::string& target) {
  const std::string list = RelationshipsPart(part);
  if (!package.Has(list)) return;
  pugi::xml_document document = ParseXml(package.Part(list), list);
  pugi::xml_node root = document.document_element();
  for (pugi::xml_node node = root.first_child(); node;) {
    const pugi::xml_node next = node.next_sibling();
    if (node.attribute("Target") && std::string_view(node.attribute("TargetMode").value()) != "External" &&
        Resolve(FolderOf(part), node.attribute("Target").value()) == target) {
      root.remove_child(node);
    }
    node = next;
  }
  package.Put(list, XmlBytes(document));
}

void AddDefaultContentType(Package& package, std::string_view extension, std::string_view type) {
  pugi::xml_document types = ParseXml(package.Part(kContentTypes), kContentTypes);
  pugi::xml_node root = types.document_element();
  for (const pugi::xml_node node : root.children("Default")) {
    if (extension == node.attribute("Extension").value()) return;
  }
  pugi::xml_node node = root.prepend_child("Default");
  node.append_attribute("Extension") = std::string(extension).c_str();
  node.append_attribute("ContentType") = std::string(type).c_str();
  package.Put(kContentTypes, XmlBytes(types));
}

void AddContentType(Package& package, const std::string& part, std::string_view type) {
  pugi::xml_document types = ParseXml(package.Part(kContentTypes), kContentTypes);
  pugi::xml_node node = types.document_element().append_child("Override");
  node.append_attribute("PartName") = ("/" + part).c_str();
  node.append_attribute("ContentType") = std::string(type).c_str();
  package.Put(kContentTypes, XmlBytes(types));
}

void RemoveContentType(Package& package, const std::string& part) {
  pugi::xml_document types = ParseXml(package.Part(kContentTypes), kContentTypes);
  pugi::xml_node root = types.document_element();
  const pugi::xml_node node = root.find_child_by_attribute("Override", "PartName", ("/" + part).c_str());
  if (!node) return;
  root.remove_child(node);
  package.Put(kContentTypes, XmlBytes(types));
}

}  // namespace velmar::presentation
