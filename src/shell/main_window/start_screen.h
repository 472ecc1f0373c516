#pragma once

#include <QWidget>
#include <filesystem>
#include <vector>

#include "elements/catalogue.h"
#include "presentation/texts/words.h"

class QGridLayout;
class QVBoxLayout;

namespace velmar::shell {

class CalculationActions;
class ProjectList;

/// What fills the window before a calculation is chosen: the six element kinds, recent projects, examples.
class StartScreen : public QWidget {
  Q_OBJECT
 public:
  StartScreen(const presentation::Words& words, const CalculationActions& calculations,
              QWidget* parent = nullptr);

  void ShowProjects(const std::vector<std::filesystem::path>& recent,
                    const std::vector<std::filesystem::path>& examples);

 signals:
  void KindChosen(velmar::elements::ElementButton kind);
  void ProjectChosen(const std::filesystem::path& project);

 private:
  void AddKinds(QVBoxLayout& column, const CalculationActions& calculations);
  ProjectList* AddList(QGridLayout& lists, int place, MessageRow heading);

  presentation::Words words_;
  ProjectList* recent_ = nullptr;
  ProjectList* examples_ = nullptr;
};

}  // namespace velmar::shell
