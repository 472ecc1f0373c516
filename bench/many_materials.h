#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "storage/materials/material_store.h"

namespace velmar {

/// Adds `count` structural materials to the material database `file`, like its first one but for their names.
inline void AddMaterials(const std::filesystem::path& file, int count) {
  std::filesystem::permissions(file, std::filesystem::perms::owner_all);
  storage::MaterialStore store(file);
  std::vector<storage::StructuralRow> rows(static_cast<std::size_t>(count),
                                           *store.First<elements::StructuralMaterial>());
  for (int i = 0; i < count; ++i)
    rows[static_cast<std::size_t>(i)].record.values.name = "Materiale numero " + std::to_string(i);
  if (store.Add(rows)) throw std::runtime_error("the rows are refused");
}

}  // namespace velmar
