#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

namespace velmar::shell {

class CountBox;
class LayerRow;
class TurningButtons;

/// One side of a SEA wall, or the lining: up to three layers, each with a damping layer to its left and
/// right.
class SeaLeafPage : public Page {
 public:
  enum class Side { kFirst, kSecond };

  SeaLeafPage(Side side, PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  PageContext& context_;
  Side side_;
  CountBox* count_ = nullptr;
  std::vector<LayerRow*> rows_;
  TurningButtons* turning_ = nullptr;
  std::vector<LayerRow*> damping_;
};

}  // namespace velmar::shell
