#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <vector>

#include "elements/catalogue.h"
#include "presentation/texts/words.h"

class QVBoxLayout;

namespace velmar::shell {

class CalculationActions;

/// What fills the window before a calculation is chosen: the six element kinds, recent projects, examples.
class StartScreen : public QWidget {
 public:
  struct Doors {
    std::function<void(elements::ElementButton)> begin{};
    std::function<void(const std::filesystem::path&)> open{};
  };

  StartScreen(const presentation::Words& words, const CalculationActions& calculations, Doors doors,
              QWidget* parent = nullptr);

  void ShowProjects(const std::vector<std::filesystem::path>& recent,
                    const std::vector<std::filesystem::path>& examples);

 private:
  void AddKinds(QVBoxLayout& column, const CalculationActions& calculations);
  void Fill(QVBoxLayout& list, const std::vector<std::filesystem::path>& projects, MessageRow none);

  presentation::Words words_;
  Doors doors_;
  QVBoxLayout* recent_ = nullptr;
  QVBoxLayout* examples_ = nullptr;
};

}  // namespace velmar::shell
