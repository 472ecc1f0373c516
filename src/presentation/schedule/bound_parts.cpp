#include "presentation/schedule/bound_parts.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "presentation/documents/xml_part.h"

namespace velmar::presentation {
namespace {

constexpr const char* kContentTypes = "[Content_Types].xml";
constexpr const char* kContentTypesNamespace = "http://schemas.openxmlformats.org/package/2006/content-types";

std::string ExtensionOf(const std::string& name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

}  // namespace

ContentTypes::ContentTypes(const Package& package) {
  const pugi::xml_document document = ParseXml(package.Part(kContentTypes), kContentTypes);
  for (const pugi::xml_node node : document.document_element().children()) {
    const std::string type = node.attribute("ContentType").value();
    if (LocalName(node) == "Default") defaults_.emplace(node.attribute("Extension").value(), type);
    const std::string part = node.attribute("PartName").value();
    if (LocalName(node) == "Override" && part.starts_with('/')) overrides_.emplace(part.substr(1), type);
  }
}

std::string ContentTypes::Of(const std::string& name) const {
  if (const auto found = overrides_.find(name); found != overrides_.end()) return found->second;
  const auto found = defaults_.find(ExtensionOf(name));
  return found == defaults_.end() ? std::string() : found->second;
}

void ContentTypes::Add(const std::string& name, const std::string& type) {
  const std::string extension = ExtensionOf(name);
  const bool picture = type.starts_with("image/");
  if (picture && !defaults_.contains(extension)) defaults_.emplace(extension, type);
  if (Of(name) != type) overrides_[name] = type;
}

void ContentTypes::WriteTo(Package& package) const {
  pugi::xml_document document = ParseXml(package.Part(kContentTypes), kContentTypes);
  pugi::xml_node root = document.document_element();
  root.remove_children();
  for (const auto& [extension, type] : defaults_) {
    pugi::xml_node node = root.append_child("Default");
    node.append_attribute("Extension") = extension.c_str();
    node.append_attribute("ContentType") = type.c_str();
  }
  for (const auto& [part, type] : overrides_) {
    pugi::xml_node node = root.append_child("Override");
    node.append_attribute("PartName") = ("/" + part).c_str();
    node.append_attribute("ContentType") = type.c_str();
  }
  if (!root.attribute("xmlns")) root.append_attribute("xmlns") = kContentTypesNamespace;
  package.Put(kContentTypes, XmlBytes(document));
}

BoundParts::BoundParts(Package& package, std::string main_part)
    : package_(package),
      main_part_(std::move(main_part)),
      types_(package),
      links_(LinksOf(package, main_part_)) {}

std::string BoundParts::FreeName(const std::string& name) const {
  if (!package_.Has(name)) return name;
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  for (int number = 2;; ++number) {
    std::string free = name.substr(0, dot) + "_" + std::to_string(number) + name.substr(dot);
    if (!package_.Has(free)) return free;
  }
}

std::string BoundParts::TakePart(const Package& from, const ContentTypes& types, const std::string& name) {
  const std::string& bytes = from.Part(name);
  std::vector<WrittenLink> links = LinksOf(from, name);
  const std::size_t hash = std::hash<std::string>()(bytes);
  if (links.empty()) {
    const auto [begin, end] = known_.equal_range(hash);
    const auto same =
        std::find_if(begin, end, [&](const auto& known) { return package_.Part(known.second) == bytes; });
    if (same != end) return same->second;
  }
  std::string taken = FreeName(name);
  package_.Put(taken, bytes);
  types_.Add(taken, types.Of(name));
  if (links.empty()) {
    known_.emplace(hash, taken);
    return taken;
  }
  for (WrittenLink& link : links) {
    if (!link.external) link.target = TakePart(from, types, link.target);
  }
  PutLinks(package_, taken, links);
  return taken;
}

std::string BoundParts::Take(const Package& from, const ContentTypes& types, const WrittenLink& link) {
  const std::string target = link.external ? link.target : TakePart(from, types, link.target);
  std::string& id = link_of_target_[link.type + " " + target];
  if (!id.empty()) return id;
  const auto taken = [&](const std::string& name) {
    return std::ranges::count(links_, name, &WrittenLink::id) > 0;
  };
  do {
    id = "rIdV" + std::to_string(next_link_++);
  } while (taken(id));
  links_.push_back({.id = id, .type = link.type, .target = target, .external = link.external});
  return id;
}

void BoundParts::Finish() {
  PutLinks(package_, main_part_, links_);
  types_.WriteTo(package_);
}

}  // namespace velmar::presentation
