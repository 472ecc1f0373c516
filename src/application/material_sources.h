#pragma once

#include <filesystem>

#include "presentation/texts/calculation_data.h"

namespace velmar::application {

/// Tells where the values of a layer's material come from: what the row of its name in the material database
/// `file` says, and whether the layer's values are still that row's (the thickness is the layer's own). A
/// database that cannot be read tells nothing.
presentation::MaterialSources MaterialSourcesIn(const std::filesystem::path& file,
                                                const presentation::Words& words);

}  // namespace velmar::application
