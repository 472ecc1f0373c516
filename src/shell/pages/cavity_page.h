#pragma once

#include <array>
#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

class QLabel;
class QRadioButton;

class QVBoxLayout;

namespace velmar::shell {

class CountBox;
class FilterBox;
class LayerRow;
class NumberField;

/// The cavity of a double wall: depth, kind, and with "Materiale generico" its layers.
class CavityPage : public Page {
 public:
  explicit CavityPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  void AddDepth(QVBoxLayout& column);
  void AddKinds(QVBoxLayout& column);
  void AddLayers(QVBoxLayout& column);
  void LeaveDepth();

  PageContext& context_;
  NumberField* depth_ = nullptr;
  NumberField* fibre_ = nullptr;
  QLabel* fibre_number_ = nullptr;  ///< as the section shows it
  std::array<QRadioButton*, 3> kinds_{};
  CountBox* count_ = nullptr;
  FilterBox* filter_ = nullptr;
  QWidget* layers_ = nullptr;
  std::vector<LayerRow*> rows_;
};

}  // namespace velmar::shell
