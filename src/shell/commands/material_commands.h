#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "shell/fields/material_change.h"
#include "shell/fields/window_tools.h"
#include "shell/pages/window_services.h"
#include "storage/materials/material_store.h"

namespace velmar::shell {

/// Opens the editor of a material, for a new one when `name` is empty; gives what it stored.
using MaterialEditor = std::function<std::optional<MaterialChange>(
    QWidget* parent, const WindowTools&, elements::MaterialFamily, const std::string& name)>;

/// The editors of `store`, which outlives them.
MaterialEditor EditorOf(storage::MaterialStore& store, const presentation::Words& words);

/// The windows on the material database behind the commands and buttons of the main window: the list of
/// materials, for a layer row or from the menu, and the tree that stays open beside the main window. What
/// changes in one is followed by the other and by the lists of the main window.
class MaterialCommands {
 public:
  /// Puts the windows into `services`, whose words, boxes and places are set already.
  /// @param services to live as long as the main window, as this object
  /// @param database the material database
  /// @param editor empty: materials can be listed and deleted, not edited
  MaterialCommands(WindowServices& services, const std::filesystem::path& database, MaterialEditor editor);
  ~MaterialCommands();
  MaterialCommands(const MaterialCommands&) = delete;
  MaterialCommands& operator=(const MaterialCommands&) = delete;

 private:
  class Windows;
  std::unique_ptr<Windows> windows_;
};

}  // namespace velmar::shell
