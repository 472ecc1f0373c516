#pragma once

#include <string>

#include "presentation/documents/package.h"
#include "presentation/documents/picture.h"

namespace velmar::presentation {

/// The parts of a package that hold a picture.
struct PictureParts {
  std::string png{};
  std::string svg{};  ///< empty for a picture without vectors
};

/// Adds `picture` to the package under names that are free. @param folder "word/media", without a slash
PictureParts AddPictureParts(Package& package, const std::string& folder, const Picture& picture);

}  // namespace velmar::presentation
