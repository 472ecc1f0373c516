#pragma once

#include <optional>

#include "application/documents/document_style.h"
#include "presentation/texts/calculation_data.h"

namespace velmar::shell {

/// What the documents of a window are written with.
struct DocumentServices {
  application::DocumentPlaces places{};
  presentation::MaterialSources sources{};               ///< tells where the values of materials come from
  std::optional<elements::DocumentLanguage> language{};  ///< chosen for this run; none: as the profile says
};

}  // namespace velmar::shell
