#include "shell/pages/resilient_layers_page.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "calculation/edits/count_rules.h"
#include "calculation/edits/material_choice.h"
#include "shell/fields/filter_box.h"
#include "shell/fields/list_boxes.h"
#include "shell/page_parts/layer_row.h"
#include "shell/page_parts/page_layout.h"

namespace velmar::shell {

ResilientLayersPage::ResilientLayersPage(PageContext& context, QWidget* parent)
    : Page(parent), context_(context) {
  constexpr int kCapacity = elements::ResilientLayers::kCapacity;
  QVBoxLayout* column = PageLayout(this);
  const TableHead head = AddTableHead({.count_name = "Combo12",
                                       .lowest = 0,
                                       .highest = kCapacity,
                                       .filter_name = "Combo8",
                                       .filter = FilterId::kResilient},
                                      context, *column, this);
  count_ = head.count;
  filter_ = head.filter;
  context_.Watch(count_);
  connect(count_, &CountBox::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup, const elements::MaterialLookup& tables) {
      calculation::EnterResilientCount(setup, text);
      calculation::ReloadLayers(setup, elements::LayerGroup::kResilient, tables);
    });
  });

  auto* grid = new QGridLayout;
  heads_ = AddLayerHeads(*grid, 0, context, /*with_sheets=*/true, this);
  for (int i = 0; i < kCapacity; ++i) {
    const LayerRowPlan plan{.group = elements::LayerGroup::kResilient, .index = i, .count_box = "Combo13"};
    rows_.push_back(new LayerRow(plan, context, *grid, i + 1, this));
  }
  column->addLayout(grid);
  column->addStretch(1);
}

void ResilientLayersPage::Show(const elements::Setup& setup) {
  count_->Show(std::to_string(setup.resilient.count));
  ShowFilter(*filter_, FilterId::kResilient, context_);
  for (QWidget* head : heads_) head->setVisible(setup.resilient.count > 0);
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
    rows_.at(static_cast<std::size_t>(i))->Show(setup, i < setup.resilient.count);
}

}  // namespace velmar::shell
