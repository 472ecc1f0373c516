#pragma once

#include <string>
#include <string_view>

#include "elements/studio_profile.h"
#include "presentation/texts/calculation_data.h"

namespace velmar::presentation {

/// SHA-256 of `bytes` in lower-case hexadecimal, as `sha256sum` writes it.
std::string Sha256Of(std::string_view bytes);

/// What a document of today says of its origin.
/// @param project_bytes what saving the project would write
/// @param project_file its name without a folder; empty for one that was never saved
/// @param language of the date
Provenance ProvenanceOf(std::string_view project_bytes, std::string project_file, MaterialSources sources,
                        elements::DocumentLanguage language = elements::DocumentLanguage::kItalian);

}  // namespace velmar::presentation
