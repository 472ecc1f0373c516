#pragma once

#include <string>
#include <vector>

#include "presentation/documents/package.h"

namespace velmar::presentation {

/// A link to a file outside the package that a program would load.
struct OutsideLink {
  std::string part{};    ///< that holds it
  std::string kind{};    ///< "attachedTemplate", "image"
  std::string target{};  ///< as written
};

/// All of them; addresses that wait for a click are none.
std::vector<OutsideLink> OutsideLinksOf(const Package& package);

/// Takes them out of the package, with what names them.
void CutOutsideLinks(Package& package);

/// @throws TemplateFailure when any part holds a document type declaration, which can name files and entities
void RefuseDoctypes(const Package& package);

}  // namespace velmar::presentation
