#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

namespace velmar::shell {

class CountBox;
class FilterBox;
class LayerRow;

/// The resilient layers under a floating screed: none to ten.
class ResilientLayersPage : public Page {
 public:
  explicit ResilientLayersPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  PageContext& context_;
  CountBox* count_ = nullptr;
  FilterBox* filter_ = nullptr;
  std::vector<LayerRow*> rows_;
  std::vector<QWidget*> heads_;
};

}  // namespace velmar::shell
