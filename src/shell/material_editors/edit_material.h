#pragma once

#include <optional>
#include <string>

#include "elements/layer_groups.h"
#include "materials/keywords.h"
#include "shell/fields/material_change.h"
#include "shell/windows/window_tools.h"
#include "storage/materials/material_store.h"

class QWidget;

namespace velmar::material_editors {

/// Opens the editor of `family` above `parent` and waits until it closes: with the boxes of a new material
/// when `name` is empty ("Nuovo"), else filled from the row called `name` ("Modifica").
/// @return what was stored; nothing when the user gave up, when nothing was changed, and when the row is gone
///   or the database cannot be read, which is told
std::optional<shell::MaterialChange> EditMaterial(QWidget* parent, const shell::WindowTools& tools,
                                                  storage::MaterialStore& store,
                                                  const materials::KeywordTexts& texts,
                                                  elements::MaterialFamily family, const std::string& name);

}  // namespace velmar::material_editors
