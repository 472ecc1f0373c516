#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>

#include "shell/commands/calculation_menu.h"
#include "shell/commands/command_set.h"
#include "shell/commands/help_commands.h"
#include "shell/main_window/window_services.h"
#include "shell/page_parts/page_context.h"
#include "shell/project/open_work.h"
#include "shell/project/project_files.h"
#include "shell/project/recovery.h"
#include "shell/project/window_memory.h"
#include "shell/results/continuous_calculation.h"
#include "shell/results/open_table.h"

class QLabel;
class QMenu;
class QSplitter;
class QStackedWidget;

namespace velmar::shell {

class CommandToolBar;
class EditMenu;
class ElementHeader;
class InputTabs;
class ResultsPanel;
class SecondOpinionPanel;
class StartScreen;
class VariantStrip;

/// The main window (`Form1`): composes commands, pages and results around the one open calculation, and owns
/// no rule.
class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  /// @param services outlives the window
  explicit MainWindow(const WindowServices& services, QWidget* parent = nullptr);
  ~MainWindow() override;

 public slots:
  /// Opens the project file `project` as if it were dropped on the window.
  void OpenProject(const std::filesystem::path& project);
  /// Begins a new work with what the template `pattern` holds.
  void BeginWith(const std::filesystem::path& pattern);
  /// Offers unsaved work that earlier runs left behind.
  void OfferRecovery();
  /// Something failed that nobody foresaw: unsaved work is kept before anything else, then `what` is told.
  void SurviveFailure(const QString& what);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void MakeCentre();
  void AddContinuousSwitch(QMenu& menu);
  void Connect();
  void Choose(elements::Calculation calculation);
  void Begin(elements::ElementButton kind);
  void ShowAll();
  void ShowName();
  void ArrangeSides();
  void ShowProjects();
  void Exit(bool asking);
  void MakeStatusLine();
  /// Says `text` at the foot of the window for a while.
  void Say(const QString& text);
  void FollowMaterials(MaterialCommands& commands);

  const WindowServices& services_;
  MaterialLists materials_;
  PageContext context_;
  OpenWork work_;
  WindowMemory memory_;
  ContinuousCalculation continuous_;
  Recovery recovery_;
  ProjectFiles files_;
  OpenTable table_;
  HelpCommands help_;
  ResultsPanel* results_ = nullptr;
  SecondOpinionPanel* opinion_ = nullptr;
  CommandSet commands_;
  CalculationActions calculations_;
  CommandToolBar* tool_bar_ = nullptr;
  EditMenu* edit_menu_ = nullptr;
  VariantStrip* variants_ = nullptr;
  QMenu* recent_ = nullptr;
  QLabel* said_ = nullptr;
  QTimer silence_;
  QStackedWidget* centre_ = nullptr;
  StartScreen* start_ = nullptr;
  QSplitter* sides_ = nullptr;
  ElementHeader* header_ = nullptr;
  InputTabs* tabs_ = nullptr;
  bool sides_arranged_ = false;
};

}  // namespace velmar::shell
