#pragma once

#include <filesystem>
#include <functional>

#include "elements/material_record.h"
#include "elements/setup.h"
#include "foundation/failure.h"
#include "storage/project/project_reader.h"

namespace velmar::application {

/// Opens the project file `path` over `current`: its calculation is chosen as by its menu entry, then takes
/// the file's values.
/// @param current what stands in fields that the file does not have
/// @param materials today's material tables, asked as one operation
/// @throws ProjectFileFailure; nothing has changed then
storage::OpenedProject OpenProject(const std::filesystem::path& path, const elements::Setup& current,
                                   const elements::MaterialLookup& materials);

/// `materials` for a program that can do without: a table that cannot be read holds nothing, and `tell` is
/// called each time; for one operation once.
elements::MaterialLookup ForgivingLookup(elements::MaterialLookup materials,
                                         const std::function<void(const Failure&)>& tell);

}  // namespace velmar::application
