#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "elements/layer_groups.h"
#include "foundation/message.h"
#include "shell/fields/material_change.h"
#include "storage/materials/material_row.h"
#include "storage/tables/cell.h"

namespace velmar::shell {

/// A row of a material table, in the order of storage::TableOf(family).
using MaterialCells = std::vector<storage::Cell>;

/// The material database as windows see it. Each function but `edit` may throw Failure; nothing has changed
/// then.
struct MaterialSource {
  /// All rows in the order of their table.
  std::function<std::vector<MaterialCells>(elements::MaterialFamily)> rows;
  /// Names and keywords of all rows.
  std::function<std::vector<storage::ListedMaterial>(elements::MaterialFamily)> names;
  /// The row called `name`; nothing when there is none.
  std::function<std::optional<MaterialCells>(elements::MaterialFamily, const std::string& name)> find;
  /// @return false when there was no row of that name
  std::function<bool(elements::MaterialFamily, const std::string& name)> remove;
  /// Puts a row back that was removed. @return the refusal: another one has its name now
  std::function<std::optional<Message>(elements::MaterialFamily, const MaterialCells&)> add{};
  /// Opens the editor for the row called `name`, for a new one when that is empty. Gives what it stored;
  /// nothing when the user gave up. Empty: there is no editor.
  std::function<std::optional<MaterialChange>(QWidget* parent, elements::MaterialFamily,
                                              const std::string& name)>
      edit{};
};

}  // namespace velmar::shell
