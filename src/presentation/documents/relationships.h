#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/documents/package.h"

namespace velmar::presentation {

/// A link from one part of a package to another.
struct Relationship {
  std::string id{};
  std::string type{};
  std::string target{};  ///< name of the part, from the package's root
};

/// The links of `part` to other parts of the package; of the package itself for an empty name. Links to what
/// lies outside (addresses) are left out.
/// @throws TemplateFailure when a target leaves the package
std::vector<Relationship> RelationshipsOf(const Package& package, const std::string& part);

/// The targets of `part` whose type ends in "/" and `kind`, such as "header".
std::vector<std::string> TargetsOf(const Package& package, const std::string& part, std::string_view kind);

/// The main part of an office document, after checking that its content type holds `content`
/// ("wordprocessingml").
/// @throws TemplateFailure when there is none, or one of another kind
std::string MainPart(const Package& package, std::string_view content);

/// Adds a link from `part` to `target` (a part's name). @return its identifier
std::string AddRelationship(Package& package, const std::string& part, const std::string& type,
                            const std::string& target);

/// A link as it is written: to a part of the package or to the world outside.
struct WrittenLink {
  std::string id{};
  std::string type{};
  std::string target{};  ///< a part's name from the root, or an address
  bool external = false;
};

/// All links of `part`, those that lead outside included.
std::vector<WrittenLink> LinksOf(const Package& package, const std::string& part);

/// Writes `links` as those of `part`.
void PutLinks(Package& package, const std::string& part, const std::vector<WrittenLink>& links);

/// The content type of one part as the list states it for it alone; an empty text where it does not.
std::string ContentTypeOf(const Package& package, const std::string& part);

/// Removes every link of `part` to `target`.
void RemoveRelationship(Package& package, const std::string& part, const std::string& target);

/// Says in the list of content types that parts with `extension` are of `type`.
void AddDefaultContentType(Package& package, std::string_view extension, std::string_view type);

/// Says in the list of content types that the part `part` is of `type`.
void AddContentType(Package& package, const std::string& part, std::string_view type);

/// Takes the content type of one part out of the list.
void RemoveContentType(Package& package, const std::string& part);

}  // namespace velmar::presentation
