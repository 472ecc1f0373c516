#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

class QGridLayout;

class QVBoxLayout;

namespace velmar::shell {

class ChoiceBox;
class LayerRow;
class NumberField;

/// The cavity of a SEA wall, a lining or a ceiling: what it holds, and its depth.
class SeaCavityPage : public Page {
 public:
  explicit SeaCavityPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  void AddHead(QVBoxLayout& column);
  void AddRows();
  void Arrange(elements::SeaCavityType type);

  PageContext& context_;
  ChoiceBox* type_ = nullptr;
  NumberField* depth_ = nullptr;
  QGridLayout* grid_ = nullptr;
  std::vector<LayerRow*> fibres_;
  std::vector<LayerRow*> masses_;
  std::vector<LayerRow*> damping_;
  std::vector<QWidget*> heads_;
};

/// The words of the cavity types in their order, the first `count` of them: "Intercapedine vuota", "Fibroso",
/// "Fibroso+ Massa", ...
QStringList SeaCavityTypeNames(const presentation::Words& words, int count);

}  // namespace velmar::shell
