#pragma once

#include <vector>

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

namespace velmar::shell {

class CountBox;
class FilterBox;
class LayerRow;
class TurningButtons;

/// The layers of a leaf, a bearing floor or a screed: count, keyword filter, up to ten rows. The same page
/// serves both leaves.
class LeafPage : public Page {
 public:
  enum class Leaf { kFirst, kSecond };

  LeafPage(Leaf leaf, PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;

 private:
  const elements::LeafLayers& Layers(const elements::Setup& setup) const;

  Leaf leaf_;
  PageContext& context_;
  CountBox* count_ = nullptr;
  FilterBox* filter_ = nullptr;
  std::vector<LayerRow*> rows_;
  TurningButtons* turning_ = nullptr;
};

}  // namespace velmar::shell
