#pragma once

#include <QWidget>
#include <filesystem>
#include <vector>

#include "elements/catalogue.h"
#include "presentation/texts/words.h"
#include "shell/main_window/project_glances.h"

class QVBoxLayout;

namespace velmar::shell {

class CalculationActions;
class ConstructionTiles;
class ProjectList;

/// What a start screen offers besides the element kinds.
struct StartProjects {
  std::vector<std::filesystem::path> recent{};
  std::vector<std::filesystem::path> templates{};
  std::vector<std::filesystem::path> examples{};
};

/// What fills the window before a calculation is chosen: the six element kinds, recent projects,
/// constructions. What the projects are is found out beside the window while this is on the screen.
class StartScreen : public QWidget {
  Q_OBJECT
 public:
  StartScreen(const presentation::Words& words, const CalculationActions& calculations,
              ProjectGlances::Reader read, QWidget* parent = nullptr);

  /// @param current the set-up over which they would open
  void ShowProjects(const StartProjects& projects, const elements::Setup& current);

 signals:
  void KindChosen(velmar::elements::ElementButton kind);
  void ProjectChosen(const std::filesystem::path& project);
  void TemplateChosen(const std::filesystem::path& project);
  void TemplateRenamingWanted(const std::filesystem::path& project);
  void TemplateRemovalWanted(const std::filesystem::path& project);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void AddKinds(QVBoxLayout& column, const CalculationActions& calculations);
  void AddProjects(QVBoxLayout& column);
  void LookAtProjects();

  presentation::Words words_;
  ProjectGlances glances_;
  elements::Setup current_{};
  std::vector<std::filesystem::path> recent_projects_{};
  ProjectList* recent_ = nullptr;
  ConstructionTiles* tiles_ = nullptr;
};

}  // namespace velmar::shell
