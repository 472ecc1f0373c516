#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calculation/edits/facade_parts.h"
#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "storage/materials/material_row.h"

class QWidget;

namespace velmar::shell {

/// A layer row that asks for a material of the list.
struct LayerPick {
  elements::LayerGroup group{};
  int row = 0;  ///< from 0
};

/// What a stored result or a measurement is asked for: the base element, or a component of the facade.
struct ElementPick {
  /// 0: opaque part or base element; 1 to 9: a component, in use from then on
  int component = 0;
  QString caption{};  ///< of the window that offers it
};

/// What the input pages reach beyond themselves. A function that is empty is a store or a window that this
/// program does not have.
struct PageServices {
  elements::MaterialLookup materials{};
  /// All materials of a family in the order of their table.
  /// @throws Failure when the table cannot be read
  std::function<std::vector<storage::ListedMaterial>(elements::MaterialFamily)> material_names{};

  /// Names of the stored airborne results (`Combo14`, `Combo16`).
  std::function<std::vector<std::string>()> saved_results{};
  std::function<std::optional<calculation::FacadePart>(const std::string& name)> saved_result{};

  std::function<void(QWidget* parent, const LayerPick&)> pick_material{};
  /// Makes a material of the user's own from the one in the row, puts it there and opens its editor.
  std::function<void(QWidget* parent, const LayerPick&)> duplicate_material{};
  std::function<void(QWidget* parent, const ElementPick&)> pick_saved_result{};
  std::function<void(QWidget* parent, const ElementPick&)> pick_measured{};
};

}  // namespace velmar::shell
