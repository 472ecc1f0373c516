#include "shell/pages/leaf_page.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "calculation/edits/count_rules.h"
#include "calculation/edits/material_choice.h"
#include "shell/fields/filter_box.h"
#include "shell/fields/list_boxes.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/layer_tools.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;

struct LeafControls {
  LayerGroup group{};
  const char* count = "";
  int filter_index = 0;
  FilterId filter{};
  const char* sheets = "";
};

LeafControls ControlsOf(LeafPage::Leaf leaf) {
  if (leaf == LeafPage::Leaf::kFirst) return {LayerGroup::kLeaf1, "Combo1", 0, FilterId::kLeaf1, "Combo2"};
  return {LayerGroup::kLeaf2, "Combo5", 1, FilterId::kLeaf2, "Combo6"};
}

}  // namespace

LeafPage::LeafPage(Leaf leaf, PageContext& context, QWidget* parent)
    : Page(parent), leaf_(leaf), context_(context) {
  const LeafControls controls = ControlsOf(leaf);
  constexpr int kCapacity = elements::LeafLayers::kCapacity;
  QVBoxLayout* column = PageLayout(this);
  const TableHead head = AddTableHead({.count_name = controls.count,
                                       .lowest = 1,
                                       .highest = kCapacity,
                                       .filter_name = ArrayName("Combo7", controls.filter_index),
                                       .filter = controls.filter},
                                      context, *column, this);
  count_ = head.count;
  filter_ = head.filter;
  turning_ = new TurningButtons(*head.line, context, controls.count, this);
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this, controls](const std::string& text) {
    context_.Edit([&](elements::Setup& setup, const elements::MaterialLookup& tables) {
      leaf_ == Leaf::kFirst ? calculation::EnterLeaf1Count(setup, text)
                            : calculation::EnterLeaf2Count(setup, text);
      calculation::ReloadLayers(setup, controls.group, tables);
    });
  });

  auto* grid = new QGridLayout;
  AddLayerHeads(*grid, 0, context, /*with_sheets=*/true, this);
  for (int i = 0; i < kCapacity; ++i) {
    const LayerRowPlan plan{.group = controls.group, .index = i, .count_box = controls.sheets};
    rows_.push_back(new LayerRow(plan, context, *grid, i + 1, this));
  }
  column->addLayout(grid);
  column->addStretch(1);
}

const elements::LeafLayers& LeafPage::Layers(const elements::Setup& setup) const {
  return leaf_ == Leaf::kFirst ? setup.leaf1 : setup.leaf2;
}

void LeafPage::Show(const elements::Setup& setup) {
  const elements::LeafLayers& layers = Layers(setup);
  count_->Show(std::to_string(layers.count));
  turning_->Show(setup);
  ShowFilter(*filter_, ControlsOf(leaf_).filter, context_);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
    rows_.at(static_cast<std::size_t>(i))->Show(setup, i < layers.count);
}

}  // namespace velmar::shell
