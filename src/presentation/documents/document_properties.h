#pragma once

#include <string>

#include "presentation/documents/package.h"

namespace velmar::presentation {

/// What a document says of itself to who lists or searches it. UTF-8; an empty text leaves what the template
/// says.
struct DocumentProperties {
  std::string title{};
  std::string author{};
  std::string subject{};
  std::string created{};  ///< the day, "2026-11-22"
  std::string program{};  ///< with its version
};

/// Writes the properties of a package (ECMA-376 part 2, core properties): those of `properties` over those of
/// the template.
/// @throws TemplateFailure when the template's own cannot be read
void SetDocumentProperties(Package& package, const DocumentProperties& properties);

}  // namespace velmar::presentation
