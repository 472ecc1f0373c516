#include "presentation/documents/document_properties.h"

#include <string_view>

#include <pugixml.hpp>

#include "presentation/documents/relationships.h"
#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

/// A part that holds properties, and what makes it one.
struct PropertyPart {
  const char* name = "";
  const char* kind = "";  ///< end of the relationship's type
  const char* relationship = "";
  const char* content = "";
  const char* empty = "";
};

constexpr PropertyPart kCore = {
    "docProps/core.xml", "core-properties",
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties",
    "application/vnd.openxmlformats-package.core-properties+xml",
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
    R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" )"
    R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"/>)"};

constexpr PropertyPart kApplication = {
    "docProps/app.xml", "extended-properties",
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties",
    "application/vnd.openxmlformats-officedocument.extended-properties+xml",
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"/>)"};

/// The name of the part, made when the template has none.
std::string PartOf(Package& package, const PropertyPart& part) {
  const std::vector<std::string> targets = TargetsOf(package, "", part.kind);
  if (!targets.empty()) return targets.front();
  package.Put(part.name, part.empty);
  AddContentType(package, part.name, part.content);
  AddRelationship(package, "", part.relationship, part.name);
  return part.name;
}

/// The element called `name` behind whatever prefix the part gives it.
pugi::xml_node Element(pugi::xml_node root, const char* name) {
  const std::string_view wanted = name;
  const std::size_t colon = wanted.find(':');
  const std::string_view local = colon == std::string_view::npos ? wanted : wanted.substr(colon + 1);
  for (const pugi::xml_node node : root.children()) {
    if (LocalName(node) == local) return node;
  }
  return root.append_child(name);
}

void Put(pugi::xml_node root, const char* name, const std::string& text) {
  if (!text.empty()) Element(root, name).text().set(LegalText(text).c_str());
}

}  // namespace

void SetDocumentProperties(Package& package, const DocumentProperties& properties) {
  const std::string core_part = PartOf(package, kCore);
  pugi::xml_document core = ParseXml(package.Part(core_part), core_part);
  pugi::xml_node root = core.document_element();
  Put(root, "dc:title", properties.title);
  Put(root, "dc:subject", properties.subject);
  Put(root, "dc:creator", properties.author);
  if (!properties.created.empty()) {
    pugi::xml_node created = Element(root, "dcterms:created");
    pugi::xml_attribute type = created.attribute("xsi:type");
    (type ? type : created.append_attribute("xsi:type")) = "dcterms:W3CDTF";
    created.text().set((properties.created + "T00:00:00Z").c_str());
  }
  package.Put(core_part, XmlBytes(core));
  if (properties.program.empty()) return;
  const std::string application_part = PartOf(package, kApplication);
  pugi::xml_document application = ParseXml(package.Part(application_part), application_part);
  Put(application.document_element(), "Application", properties.program);
  package.Put(application_part, XmlBytes(application));
}

}  // namespace velmar::presentation
