#pragma once

#include <QObject>
#include <QPointer>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "calculation/open/open_calculation.h"
#include "shell/commands/own_tools.h"
#include "shell/fields/material_change.h"
#include "shell/materials/material_list_window.h"
#include "shell/materials/material_source.h"
#include "shell/materials/material_tree_window.h"
#include "shell/page_parts/page_services.h"
#include "shell/windows/boxes.h"
#include "shell/windows/window_tools.h"
#include "storage/materials/material_store.h"
#include "storage/project/material_uses.h"

namespace velmar::shell {

/// Opens the editor of a material, for a new one when `name` is empty; gives what it stored.
using MaterialEditor = std::function<std::optional<MaterialChange>(
    QWidget* parent, const WindowTools&, elements::MaterialFamily, const std::string& name)>;

/// The editors of `store`, which outlives them.
MaterialEditor EditorOf(storage::MaterialStore& store, const presentation::Words& words);

/// The windows on the material database behind the commands and buttons of the main window: the list of
/// materials, for a layer row or from the menu, and the tree that stays open beside the main window. What
/// changes in one is followed by the other, and told.
class MaterialCommands : public QObject {
  Q_OBJECT
 public:
  /// @param open and `speech` outlive this object
  /// @param settings file of the main window's sizes, beside which those of these windows are kept; empty:
  ///                 nothing is remembered
  /// @param database the material database
  /// @param editor empty: materials can be listed and deleted, not edited
  MaterialCommands(calculation::OpenCalculation& open, const Speech& speech,
                   const std::filesystem::path& settings, const std::filesystem::path& database,
                   MaterialEditor editor);

  /// The pages pick their materials here from now on. @param pages to live as long as this object
  void Serve(PageServices& pages);
  /// Projects that use a material are looked for in what `where` names then. @param where is asked in the
  /// window's thread
  void SearchIn(std::function<storage::SearchedProjects()> where) { where_ = std::move(where); }

 public slots:
  void ShowList(QWidget* parent);
  void ShowTree(QWidget* parent);

 signals:
  /// An editor stored a material.
  void Changed(const velmar::shell::MaterialChange& change);
  /// A material was deleted; a layer that holds it keeps it.
  void Removed(velmar::elements::MaterialFamily family, const std::string& name);
  /// The tables are to be read anew.
  void Reread();

 private:
  void Open(QWidget* parent, std::optional<MaterialPick> wanted);
  /// The material of a layer row once more as one of the user's own, in the row with the row's thickness.
  void Duplicate(QWidget* parent, const LayerPick& pick, const PageServices& pages);
  void TellChange(const MaterialChange& change);
  /// The numbers of the layers of the open calculation that hold `name`.
  std::vector<int> LayersThatHold(elements::MaterialFamily family, const std::string& name) const;

  calculation::OpenCalculation& open_;
  OwnTools own_;
  storage::MaterialStore store_;
  MaterialSource source_;
  std::function<storage::SearchedProjects()> where_{};
  QPointer<MaterialTreeWindow> tree_;
};

}  // namespace velmar::shell
