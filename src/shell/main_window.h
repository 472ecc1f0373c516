#pragma once

#include <QMainWindow>
#include <memory>

#include "shell/calculation_menu.h"
#include "shell/command_set.h"
#include "shell/open_table.h"
#include "shell/page_context.h"
#include "shell/project_files.h"
#include "shell/recovery.h"
#include "shell/window_memory.h"

class QMenu;
class QSplitter;
class QStackedWidget;

namespace velmar::shell {

class CommandToolBar;
class ElementHeader;
class InputTabs;
class ResultsPanel;
class StartScreen;

/// The main window (`Form1`): composes commands, pages and results around the one open calculation, and owns
/// no rule.
class MainWindow : public QMainWindow {
 public:
  /// @param services outlives the window
  explicit MainWindow(const WindowServices& services, QWidget* parent = nullptr);
  ~MainWindow() override;

  /// Opens the project file `project` as if it were dropped on the window.
  void OpenProject(const std::filesystem::path& project);
  /// Offers work that an earlier run left behind.
  void OfferRecovery();
  /// The material tables changed: the lists offer them anew.
  void ReloadMaterials();
  /// An editor stored a material: the lists follow it.
  void FollowMaterial(const windows::MaterialChange& change);
  /// A material was deleted: the lists offer it no longer; a layer that holds it keeps it.
  void ForgetMaterial(elements::MaterialFamily family, const std::string& name);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void MakeCentre();
  void Execute(CommandId id);
  void ExecuteElsewhere(CommandId id);
  void Choose(elements::Calculation calculation);
  void Begin(elements::ElementButton button);
  void ShowAll();
  void ArrangeSides();
  void ShowProjects();
  void Exit(bool asking);

  const WindowServices& services_;
  MaterialLists materials_;
  PageContext context_;
  WindowMemory memory_;
  Recovery recovery_;
  ProjectFiles files_;
  OpenTable table_;
  CommandSet commands_;
  CalculationActions calculations_;
  CommandToolBar* tool_bar_ = nullptr;
  QMenu* recent_ = nullptr;
  QStackedWidget* centre_ = nullptr;
  StartScreen* start_ = nullptr;
  QSplitter* sides_ = nullptr;
  ElementHeader* header_ = nullptr;
  InputTabs* tabs_ = nullptr;
  ResultsPanel* results_ = nullptr;
  bool had_result_ = false;
  bool sides_arranged_ = false;
};

}  // namespace velmar::shell
