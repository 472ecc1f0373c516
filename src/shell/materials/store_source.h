#pragma once

#include <filesystem>

#include "shell/materials/material_source.h"

namespace velmar::shell {

/// The material database `file`; without an editor.
MaterialSource StoredMaterials(const std::filesystem::path& file);

}  // namespace velmar::shell
