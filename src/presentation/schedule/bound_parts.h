#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <pugixml.hpp>

#include "presentation/documents/package.h"
#include "presentation/documents/relationships.h"

namespace velmar::presentation {

/// The list of content types of a package, read once and written back at the end.
class ContentTypes {
 public:
  explicit ContentTypes(const Package& package);

  /// Of the part `name`; an empty text where the list says nothing.
  std::string Of(const std::string& name) const;
  /// Says that the part `name` is of `type`, unless its extension says so already.
  void Add(const std::string& name, const std::string& type);
  void WriteTo(Package& package) const;

 private:
  std::map<std::string, std::string> defaults_{};
  std::map<std::string, std::string> overrides_{};
};

/// Takes parts of other packages into one package, each with all that it links to, under names that are free.
/// What is there already with the same bytes is taken once. A document of many chapters keeps one list of
/// links of its main part, which is written at the end.
class BoundParts {
 public:
  /// @param package into which parts are taken @param main_part whose links this keeps; both outlive this
  BoundParts(Package& package, std::string main_part);

  /// Takes what the link `link` of a package `from` leads to. @return the identifier of a link of the main
  /// part to it
  std::string Take(const Package& from, const ContentTypes& types, const WrittenLink& link);

  /// Writes links and content types into the package.
  void Finish();

  ContentTypes& Types() { return types_; }

 private:
  std::string TakePart(const Package& from, const ContentTypes& types, const std::string& name);
  std::string FreeName(const std::string& name) const;

  Package& package_;
  std::string main_part_;
  ContentTypes types_;
  std::vector<WrittenLink> links_;
  std::size_t next_link_ = 1;
  /// Parts without links of their own, by the hash of their bytes.
  std::unordered_multimap<std::size_t, std::string> known_{};
  std::map<std::string, std::string> link_of_target_{};
};

}  // namespace velmar::presentation
