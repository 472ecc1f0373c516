#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

class QCheckBox;
class QLabel;
class QTabWidget;

class QVBoxLayout;

namespace velmar::shell {

class ChoiceBox;
class CountBox;
class ElementForm;
class FacadeTable;

/// The parts of a facade in a table, and under it the components, one inner tab each.
class ComponentsPage : public Page {
 public:
  explicit ComponentsPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  struct Component {
    ElementForm* form = nullptr;
    ChoiceBox* tightness = nullptr;
    QLabel* share = nullptr;
  };

  void AddHead(QVBoxLayout& column);
  Component AddComponent(int index);
  void FitHeight();

  PageContext& context_;
  CountBox* count_ = nullptr;
  QCheckBox* simplified_ = nullptr;
  FacadeTable* table_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  std::vector<Component> components_;
};

}  // namespace velmar::shell
